// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace sivane::testing {

using Bytes = std::vector<unsigned char>;

/// The bytes that a text of hexadecimal digits spells; blanks and line ends are skipped. Throws on anything
/// else.
Bytes hex(std::string_view text);

Bytes operator+(Bytes left, Bytes const& right);

/// CRC_32 bit by bit, on purpose by other means than the library's.
std::uint32_t slow_crc(Bytes const& bytes, std::uint32_t start = 0xFFFFFFFF);

/// Puts the CRC of all other bytes into the last four.
void repair_crc(Bytes& section);

/// The header of a section to be made.
struct LongSection {
  int table_id = 0;
  int context_id = 0;
  int version_number = 0;
  int current_next_indicator = 1;
  int section_number = 0;
  int last_section_number = 0;
};

/// Header, body and CRC of a long-form section.
Bytes make_section(LongSection const& header, Bytes const& body);
/// Header and body of a short-form section.
Bytes make_short_section(int table_id, Bytes const& body);

struct Program {
  int program_number;
  int pid;
};
/// A program association section, its CRC included.
Bytes make_pat(std::vector<Program> const& programs, LongSection header = {});

/// A descriptor: tag, length and body.
Bytes make_descriptor(int tag, Bytes const& body);

}  // namespace sivane::testing
