// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sivane {

/// Tells which sections of a stream are new: most of a live stream is repetition, and a host that asks first
/// parses every section once.
///
/// A section is known by its PID, table id, table_id_extension, section_number and current_next_indicator, an
/// SDT or EIT by its transport stream and network as well. Of each the version and the CRC are kept that it
/// had last. An answer takes 32 comparisons at most, whatever is kept; memory grows by doubling, to 64 bytes
/// for each of the `capacity` (and no less than 4 KB). An object is for one stream and one thread.
class SIVANE_API SeenSections {
 public:
  /// What is known of a section.
  enum class Sighting {
    first,        ///< never seen
    new_version,  ///< seen with another version_number
    changed,      ///< seen with this version_number, but with another CRC
    repeated,     ///< seen, and the same
    unknowable,   ///< short-form, or too short, or with a wrong CRC: always new, and not kept
  };

  /// How many sections are kept. One more, and all are forgotten, so that each counts once as never seen.
  explicit SeenSections(std::size_t capacity = 65536);

  /// What the section is, which is seen from now on. `section` must hold the section_length + 3 bytes that it
  /// claims. The CRC is computed of what is new; what repeats the stored one is taken as it is.
  Sighting see(int pid, unsigned char const* section);
  /// Whether it is anything but repeated.
  bool is_new(int pid, unsigned char const* section) { return see(pid, section) != Sighting::repeated; }

  /// Forgets all.
  void clear();
  std::size_t size() const { return size_; }                               ///< sections that are kept
  std::size_t memory() const { return slots_.capacity() * sizeof(Slot); }  ///< in bytes

 private:
  struct Slot {
    std::uint64_t key = 0;    // what a section is known by, and its version; 0 is a free slot
    std::uint32_t place = 0;  // transport stream and network
    std::uint32_t crc = 0;
  };
  static Slot slot_of(int pid, unsigned char const* section, int size);
  Slot* find(Slot const& wanted);
  void insert(Slot const& slot);
  bool put(Slot const& slot);
  void grow();

  std::vector<Slot> slots_;  // a power of two
  std::size_t size_ = 0;
  std::size_t capacity_;
};

}  // namespace sivane
