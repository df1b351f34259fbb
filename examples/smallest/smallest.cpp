// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The smallest host that reads a stream: prints every program association table of the file that it is given.
#include <sivane/sivane.h>

#include <fstream>
#include <iostream>

class Host final : public sivane::DemuxIstream {
 public:
  explicit Host(std::istream& stream) : DemuxIstream(stream) { add_psi_handler(0x0000, 0x00); }

 protected:
  void on_psi_section(int pid, int, int, unsigned char const* section) override {
    try {
      sivane::Pat pat;
      pat.Parse(section);
      pat.dump_state(std::cout);
    } catch (sivane::error const& failure) {
      std::cerr << "PID " << pid << ": " << failure.what() << '\n';
    }
  }
};

int main(int argc, char** argv) {
  char const* const name = argc > 1 ? argv[1] : "";
  std::ifstream file(name, std::ios::binary);
  if (!file) {
    std::cerr << "cannot open " << name << '\n';
    return 1;
  }
  Host host(file);
  return host.start() == 1 ? 0 : 1;
}
