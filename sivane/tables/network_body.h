// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the body that a NIT and a BAT have in common.
#pragma once

#include <sivane/foundation/parse_state.h>
#include <sivane/foundation/reader.h>
#include <sivane/tables/entry.h>
#include <sivane/tables/section.h>

namespace sivane {

/// Two loops, bounded by their own lengths and by the end of the section; where the CRC lies is of no
/// account.
template <class Table>
void parse_network_body(Table& table, Reader reader) {
  constexpr int ca_tag = 0x09;
  constexpr int size_without_loops = 4;
  reader.need(size_without_loops, too_little_data);

  int const descriptors_length = length_field(reader);
  // Where the last descriptor ends is not looked at.
  auto const file = [&table](DescriptorBytes descriptor, unsigned int specifier) {
    if (descriptor.tag() == ca_tag) {
      table.ca_descriptors.emplace_back(descriptor);
    } else {
      table.ParseDescriptor(descriptor, specifier);
    }
  };
  file_descriptors(reader, descriptors_length, start_end_mismatch, LoopEnd::open, file,
                   [&table](DescriptorBytes descriptor, unsigned int specifier) {
                     table.file_as_bytes(descriptor, specifier);
                   });

  int const loop_length = length_field(reader);
  Reader loop = reader.loop(loop_length, start_end_mismatch);
  // Each entry is told the length of the whole loop, so that only a loop too short for any has too little
  // data.
  loop.walk(table.stream_infos, start_end_mismatch, loop_length);
}

}  // namespace sivane
