// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <compare>

#include "check/observation.h"

namespace inspect {

/// The sections that make one table: all have the same version (ETSI EN 300 468, 5.1.1).
struct SubTable {
  int pid = 0, table_id = 0, extension = 0, transport_stream = 0, original_network = 0;
  auto operator<=>(SubTable const&) const = default;
};

inline SubTable sub_table_of(Observation const& observation) {
  SectionSight const& section = observation.section;
  return {observation.pid, section.table_id, section.extension, section.transport_stream,
          section.original_network};
}

/// Its text as that of a section.
inline SectionSight as_section(SubTable const& table) {
  return {.table_id = table.table_id,
          .is_long = table.table_id != 0x70 && table.table_id != 0x71 && table.table_id != 0x73,
          .extension = table.extension,
          .transport_stream = table.transport_stream,
          .original_network = table.original_network};
}

inline constexpr int first_schedule = 0x50, last_schedule = 0x6F;
inline bool is_schedule(int table_id) { return table_id >= first_schedule && table_id <= last_schedule; }
inline bool is_present_following(int table_id) { return table_id == 0x4E || table_id == 0x4F; }

/// Limits are held to for so many tables of a stream; what comes beyond them is not looked at.
inline constexpr std::size_t most_sub_tables = 32768;

}  // namespace inspect
