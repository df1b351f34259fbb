// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Any bytes as a section. The first byte chooses: bit 0, whether section_length is made to fit; bit 1,
// whether the CRC is put right; the others, the table class, and whether the section is made longer than the
// longest one. The section's last bytes choose options too.
#include <sivane/sivane.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>

#include "exercise_options.h"
#include "exercise_table.h"
#include "section_builder.h"

namespace {

using sivane::testing::Bytes;

template <class Table>
void exercise(unsigned char const* section, std::size_t available) {
  sivane::fuzzing::exercise_table<Table>(section, available);
  sivane::fuzzing::exercise_options<Table>(section, available);
}

/// In the order of the rows, so that the inputs at hand keep their meaning.
constexpr void (*exercises[])(unsigned char const* section, std::size_t available) = {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) &exercise<sivane::Class>,
#include <sivane/tables/table_rows.inc>
};

/// Repeats what follows a long-form header, so that a short input gives the longest section and bytes behind.
void stretch(Bytes& section) {
  constexpr std::size_t header = 8, longest = 3 + 0xFFF, behind = 100;
  if (section.size() <= header) return;
  for (std::size_t i = header; section.size() < longest + behind; ++i) section.push_back(section[i]);
}

void fit_length(Bytes& section) {
  std::size_t const length = std::min<std::size_t>(section.size() - 3, 0xFFF);
  section[1] = static_cast<unsigned char>((section[1] & 0xF0) | length >> 8);
  section[2] = static_cast<unsigned char>(length & 0xFF);
}

/// The section ends where its length says; the bytes behind it stay.
void fit_crc(Bytes& bytes) {
  std::size_t const size = static_cast<std::size_t>(sivane::section_size(bytes.data()));
  if (size < 4 || size > bytes.size()) return;
  Bytes section(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
  sivane::testing::repair_crc(section);
  std::copy(section.begin(), section.end(), bytes.begin());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  sivane::fuzzing::Input input(data, size);
  unsigned int const choice = input.byte();
  Bytes bytes = input.rest();
  if ((choice >> 2) / std::size(exercises) % 2 != 0) stretch(bytes);
  if (bytes.size() >= 3 && (choice & 1) != 0) fit_length(bytes);
  if (bytes.size() >= 3 && (choice & 2) != 0) fit_crc(bytes);
  // A block of its own size lets the address sanitizer see the first byte that is read behind it.
  auto const block = std::make_unique<unsigned char[]>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), block.get());
  exercises[(choice >> 2) % std::size(exercises)](block.get(), bytes.size());
  return 0;
}
