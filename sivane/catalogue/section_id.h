// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what a section is known by, before anything of its body is parsed.
#pragma once

#include <sivane/tables/section.h>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace sivane {
class Eit;
class Sdt;
}  // namespace sivane

namespace sivane::catalogue {

/// A sub-table: table_id, table_id_extension, transport_stream_id and original_network_id where its kind has
/// them, from the highest bits to the lowest.
using SubTableKey = std::uint64_t;

constexpr SubTableKey sub_table_key(int table_id, int extension, int transport_stream = 0,
                                    int original_network = 0) {
  return static_cast<SubTableKey>(table_id & 0xFF) << 48 |
         static_cast<SubTableKey>(extension & 0xFFFF) << 32 |
         static_cast<SubTableKey>(transport_stream & 0xFFFF) << 16 |
         static_cast<SubTableKey>(original_network & 0xFFFF);
}
constexpr int table_id_of(SubTableKey key) { return static_cast<int>(key >> 48); }
/// The same sub-table under another table id of its kind.
constexpr SubTableKey with_table_id(SubTableKey key, int table_id) {
  constexpr SubTableKey below = (SubTableKey{1} << 48) - 1;
  return static_cast<SubTableKey>(table_id) << 48 | (key & below);
}

struct SectionId {
  SubTableKey table = 0;
  int version = 0;           // 5 bits
  int number = 0;            // 8 bits
  int last = 0;              // 8 bits
  int last_in_segment = -1;  // 8 bits; -1 where there are no segments
  std::uint32_t crc = 0;
};

SectionId section_id(PsiTableBase const& table);
SectionId section_id(Sdt const& sdt);
SectionId section_id(Eit const& eit);

/// Of a long-form section that applies now; none of others, and where the bytes are too few.
std::optional<SectionId> section_id(unsigned char const* section, std::size_t size);

}  // namespace sivane::catalogue
