// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A C++17 host of the installed library: pushes one packet with a program association section, prints the
// table, and says by its exit status whether the table and its text are right.
#include <sivane/sivane.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

namespace {

// One program, 42, whose PMT is on PID 0x0123.
constexpr unsigned char packet_start[] = {
    0x47, 0x40, 0x00, 0x10, 0x00,                    // PID 0, a section starts right behind the pointer_field
    0x00, 0xB0, 0x0D, 0x12, 0x34, 0xC1, 0x00, 0x00,  // transport stream 0x1234, version 0
    0x00, 0x2A, 0xE1, 0x23,                          // the program
    0x71, 0xEA, 0xDA, 0x0C};                         // CRC

constexpr char expected_text[] =
    "table_id 00\n"
    "section_length 000D\n"
    "context_id 1234\n"
    "version_number 00\n"
    "section_number 00\n"
    "last_section_number 0\n"
    "current_next_indicator 01\n"
    "crc32 71EADA0C\n"
    "program_number: 002A\n"
    "program_map_pid: 0123\n";

class Host final : public sivane::DemuxPush {
 public:
  Host() { add_psi_handler(0x0000, 0x00); }

  sivane::Pat pat;
  int sections = 0;

 protected:
  using DemuxPush::on_psi_section;
  void on_psi_section(int, int, int, unsigned char const* section) override {
    pat.Parse(section);
    ++sections;
  }
};

bool is_right(sivane::Pat const& pat, std::string const& text) {
  return pat.valid && pat.context_id == 0x1234 && pat.get_program_info_size() == 1 &&
         pat.get_program_info(0).program_number == 42 && pat.get_program_info(0).program_map_pid == 0x123 &&
         text == expected_text;
}

}  // namespace

int main() {
  std::array<unsigned char, sivane::ts_packet_size> packet;
  packet.fill(0xFF);
  std::copy(std::begin(packet_start), std::end(packet_start), packet.begin());

  Host host;
  int const status = host.push_data(packet.data(), static_cast<int>(packet.size()));
  std::ostringstream text;
  host.pat.dump_state(text);
  std::cout << text.str();
  if (status == 0 && host.sections == 1 && is_right(host.pat, text.str())) return 0;
  std::cerr << "unexpected: status " << status << ", " << host.sections << " section(s)\n";
  return 1;
}
