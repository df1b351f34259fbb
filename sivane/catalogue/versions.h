// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: which sections of which version were taken, and what they name.
#pragma once

#include <sivane/catalogue/budget.h>
#include <sivane/catalogue/section_id.h>

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace sivane::catalogue {

/// What the sections of a sub-table name: event_ids, service_ids, program_numbers, or transport streams with
/// the original network in the high 16 bits.
using Name = std::uint32_t;
using Names = std::vector<Name>;  // rising, each once

/// One sub-table: what is held of it, and how much of that a newer version has not named yet.
class SubTable {
 public:
  bool repeats(SectionId const& id) const;
  /// Whether the section is the first of another version.
  bool starts_anew(SectionId const& id) const;
  /// Returns what no section names any more.
  Names take(SectionId const& id, Names const& names, bool again);
  /// The section has come round once more.
  Names come_round(SectionId const& id);
  bool has(Name name) const;
  std::size_t footprint() const;
  /// By how much it grows for the section to be noted; what it names comes to that.
  std::size_t growth(SectionId const& id) const;
  void make_room(SectionId const& id);

 private:
  static constexpr int sections = 256, sections_in_segment = 8;

  void begin(SectionId const& id);
  void note(SectionId const& id, bool again);
  bool is_whole() const;
  bool has_all(int first, int last) const;
  Names finish();

  int version_ = -1;
  int last_ = 0;
  int first_number_ = 0;  // that came of this version
  int rounds_ = 0;
  bool is_whole_ = false;
  bool has_segments_ = false;
  std::bitset<sections> received_;
  std::bitset<sections> again_;  // not all of them was taken
  std::array<std::uint8_t, sections / sections_in_segment> last_in_segment_{};
  std::vector<std::uint32_t> crcs_;  // by section_number
  Names names_;                      // of this version and those before
  Names stale_;                      // those of them that this version has not named yet
};

/// The sub-tables of a stream.
class Versions {
 public:
  bool repeats(SectionId const& id) const;
  bool starts_anew(SectionId const& id) const;
  /// Makes room for the section's bookkeeping. False where there is none.
  bool prepare(SectionId const& id, Budget& budget);
  /// What follows is for sections that were prepared.
  Names take(SectionId const& id, Names names, bool again, Budget& budget);
  Names come_round(SectionId const& id, Budget& budget);
  /// Whether the sub-table names it.
  bool has(SubTableKey table, Name name) const;
  void forget(SubTableKey table, Budget& budget);

 private:
  static std::size_t new_footprint();
  template <class Operation>
  Names change(SectionId const& id, Budget& budget, Operation operation);

  std::unordered_map<SubTableKey, SubTable> tables_;
};

}  // namespace sivane::catalogue
