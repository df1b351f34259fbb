// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The host that the Python module is measured against: for each line on standard input it reads the file once
// as the module does, and prints the seconds of the processor that it took, and what it counted.
#include <sivane/sivane.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

enum class Asked { table, events };

class Host final : public sivane::DemuxPush {
 public:
  explicit Host(Asked asked) : asked_(asked) {
    set_reassembly(sivane::Reassembly::every_section);
    add(sivane::usual_registrations());
  }

  long long sum = 0;

 private:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    auto const size = static_cast<std::size_t>(sivane::section_size(section));
    add(sivane::registrations_named_by(section, size));
    try {
      count(sivane::parse_table(section, size));
    } catch (sivane::error const&) {
      sum += 1;
    }
  }

  void count(sivane::AnyTable const& table) {
    std::visit(
        [this](auto const& one) {
          if constexpr (requires { one.table_id; }) sum += one.section_length;
        },
        table);
    auto const* const eit = std::get_if<sivane::Eit>(&table);
    if (eit == nullptr || asked_ == Asked::table) return;
    for (auto const& event : eit->event_infos) sum += event.event_id;
  }

  void add(std::vector<sivane::Registration> const& registrations) {
    for (auto const& wanted : registrations) add_psi_handler(wanted.pid, wanted.table_id);
  }

  Asked asked_;
};

class Finder final : public sivane::PacketFinder {
 public:
  explicit Finder(Host& host) : host_(host) {}

 private:
  void on_packets(sivane::PacketRun const& run) override { host_.push_packets(run); }

  Host& host_;
};

long long read_once(std::string const& path, Asked asked) {
  static std::array<char, 1 << 18> piece;
  Host host(asked);
  Finder finder(host);
  std::ifstream file(path, std::ios::binary);
  do {
    file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    finder.push(reinterpret_cast<unsigned char const*>(piece.data()),
                static_cast<std::size_t>(file.gcount()));
  } while (file);
  finder.flush();
  return host.sum;
}

double seconds_used() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  Asked const asked = std::string(argv[2]) == "events" ? Asked::events : Asked::table;
  for (std::string line; std::getline(std::cin, line);) {
    double const start = seconds_used();
    long long const sum = read_once(argv[1], asked);
    std::printf("%.9f %lld\n", seconds_used() - start, sum);
    std::fflush(stdout);
  }
}
