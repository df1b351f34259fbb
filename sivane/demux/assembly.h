// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: every section of a PID.
#pragma once

#include <sivane/demux/demux.h>

namespace sivane {

/// Cuts the payloads of one PID into sections and gives each to the handlers that want it (ISO/IEC 13818-1,
/// 2.4.4). A section that lies in one packet is given from there; others are put together here.
class Demux::PidHandler::Assembly {
 public:
  Assembly(PidHandler& owner, PidCounters& counters) : owner_(owner), counters_(counters) {}

  /// Takes the payload of one packet with the PID `pid`.
  void take(int pid, bool unit_start, unsigned char const* payload, int size);
  /// Bytes are lost here: the section in progress does not come whole.
  void cut();
  /// Forgets the section in progress. Where a hook does so, the rest of its packet is left out.
  void clear();

 private:
  static constexpr int header_size = 3;
  static constexpr int largest_section = header_size + 0xFFF;

  void begin_section(unsigned char table_id);
  /// Each gives the number of bytes that it has dealt with.
  int append(unsigned char const* data, int size);
  int take_start(unsigned char const* data, int size);

  void take_tail(unsigned char const* data, int size);
  void take_starts(unsigned char const* data, int size);
  void deliver(unsigned char const* section, int size);
  void deliver_to_table(unsigned char const* section, int size);
  void deliver_to_filters(unsigned char const* section, int size);
  bool is_over() const { return was_cleared_ || owner_.removed_; }

  PidHandler& owner_;
  PidCounters& counters_;
  int pid_ = 0;                 // of the packet under way
  int held_ = 0;                // bytes of the section in progress that have gone by; 0: there is none
  int need_ = 0;                // its size, once its header is held
  bool is_wanted_ = false;      // its bytes are kept, not only counted
  bool was_cleared_ = false;    // by a hook, in the packet under way
  std::uint64_t began_at_ = 0;  // offset of the packet in which the section began
  std::uint64_t began_in_ = 0;  // call of PidHandler::parse in which it began
  unsigned char section_[largest_section];
};

}  // namespace sivane
