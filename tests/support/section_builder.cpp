// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section_builder.h"

#include <cctype>
#include <charconv>
#include <stdexcept>
#include <string>

#include "plain_bytes.h"

namespace sivane::testing {

namespace {

constexpr std::size_t crc_size = 4;

void append_16(Bytes& bytes, int value) {
  bytes.push_back(low_byte(value >> 8));
  bytes.push_back(low_byte(value));
}

}  // namespace

Bytes hex(std::string_view text) {
  std::string digits(text);
  std::erase_if(digits, [](unsigned char c) { return std::isspace(c) != 0; });
  Bytes bytes;
  for (char const* first = digits.data(); first != digits.data() + digits.size(); first += 2) {
    unsigned int value = 0;
    if (std::from_chars(first, first + 2, value, 16).ptr != first + 2)
      throw std::invalid_argument("no pair of hexadecimal digits");
    bytes.push_back(static_cast<unsigned char>(value));
  }
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
  Bytes fields;
  append_16(fields, h.context_id);
  fields.push_back(low_byte(0xC0 | h.version_number << 1 | h.current_next_indicator));
  fields.push_back(low_byte(h.section_number));
  fields.push_back(low_byte(h.last_section_number));
  Bytes section = make_short_section(h.table_id, fields + body + Bytes(crc_size));
  section[1] |= 0x80;
  repair_crc(section);
  return section;
}

Bytes make_short_section(int table_id, Bytes const& body) {
  // A zero bit in the tables of MPEG, a reserved one in those of DVB.
  int const future_use = table_id < 0x40 ? 0 : 0x4000;
  Bytes section{low_byte(table_id)};
  append_16(section, future_use | 0x3000 | static_cast<int>(body.size()));
  return section + body;
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
