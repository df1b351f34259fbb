// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section_builder.h"

#include <cctype>
#include <stdexcept>

#include "plain_bytes.h"

namespace sivane::testing {

namespace {

constexpr std::size_t crc_size = 4;

void append_16(Bytes& bytes, int value) {
  bytes.push_back(low_byte(value >> 8));
  bytes.push_back(low_byte(value));
}

int nibble(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  throw std::invalid_argument("not a hexadecimal digit");
}

Bytes make_start(int table_id, int syntax_indicator, int reserved, int length) {
  int const future_use =
      table_id < 0x40 ? 0 : 1;  // a zero bit in the tables of MPEG, a reserved one in those of DVB
  Bytes bytes{low_byte(table_id)};
  append_16(bytes, syntax_indicator << 15 | future_use << 14 | reserved << 12 | (length & 0xFFF));
  return bytes;
}

}  // namespace

Bytes hex(std::string_view text) {
  Bytes bytes;
  int high = -1;
  for (char const c : text) {
    if (std::isspace(static_cast<unsigned char>(c)) != 0) continue;
    if (high < 0) {
      high = nibble(c);
    } else {
      bytes.push_back(low_byte(high << 4 | nibble(c)));
      high = -1;
    }
  }
  if (high >= 0) throw std::invalid_argument("an odd number of hexadecimal digits");
  return bytes;
}

Bytes operator+(Bytes left, Bytes const& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

std::uint32_t slow_crc(Bytes const& bytes, std::uint32_t start) {
  std::uint32_t crc = start;
  for (unsigned char const byte : bytes) {
    for (int bit = 7; bit >= 0; --bit) {
      bool const carry = (crc >> 31) != (byte >> bit & 1u);
      crc = carry ? crc << 1 ^ 0x04C11DB7u : crc << 1;
    }
  }
  return crc;
}

void repair_crc(Bytes& section) {
  if (section.size() < crc_size) throw std::invalid_argument("no room for a CRC");
  auto const stored = section.end() - static_cast<std::ptrdiff_t>(crc_size);
  std::uint32_t const crc = slow_crc({section.begin(), stored});
  for (int i = 0; i < 4; ++i) stored[i] = static_cast<unsigned char>(crc >> (24 - 8 * i));
}

Bytes make_section(LongSection const& h, Bytes const& body) {
  int const fitting = static_cast<int>(5 + body.size() + crc_size);
  int const length = h.length_override >= 0 ? h.length_override : fitting;
  Bytes section = make_start(h.table_id, h.syntax_indicator, h.reserved_header, length);
  append_16(section, h.context_id);
  section.push_back(low_byte(0xC0 | h.version_number << 1 | h.current_next_indicator));
  section.push_back(low_byte(h.section_number));
  section.push_back(low_byte(h.last_section_number));
  section = section + body + Bytes(crc_size);
  repair_crc(section);
  return section;
}

Bytes make_short_section(int table_id, Bytes const& body, int syntax_indicator) {
  return make_start(table_id, syntax_indicator, 3, static_cast<int>(body.size())) + body;
}

Bytes make_pat(std::vector<Program> const& programs, LongSection header) {
  Bytes body;
  for (Program const& program : programs) {
    append_16(body, program.program_number);
    append_16(body, 0xE000 | program.pid);
  }
  return make_section(header, body);
}

Bytes make_descriptor(int tag, Bytes const& body) {
  return Bytes{low_byte(tag), low_byte(static_cast<int>(body.size()))} + body;
}

}  // namespace sivane::testing
