// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what each packet of a PID says about those that are missing.
#pragma once

#include <sivane/demux/demux.h>

#include <map>
#include <memory>

namespace sivane {

/// Follows the continuity_counter of one PID (ISO/IEC 13818-1, 2.4.3.3) and counts.
class Reception {
 public:
  struct Arrival {
    bool is_readable = false;  ///< it has a payload in the clear that was not there before
    bool is_cut = false;       ///< a section in progress does not go on here
    int missing = 0;           ///< packets before this one
  };

  explicit Reception(int pid) : has_continuity_(pid != null_pid) {}
  /// Takes a packet of 188 bytes that is at `offset`.
  Arrival take(unsigned char const* packet, std::uint64_t offset);

  PidCounters counters;

 private:
  static constexpr int null_pid = 0x1FFF;  // its counter is undefined

  void note_pcr(unsigned char const* packet, std::uint64_t offset);
  int missing_before(unsigned char const* packet) const;
  bool repeats(unsigned char const* packet) const;

  bool has_continuity_;
  int counter_ = -1;  // of the last packet that has one, -1 before the first
  unsigned char last_[ts_packet_size] = {};
};

/// The receptions of the PIDs that are counted, which stay where they are.
class Demux::Receptions {
 public:
  Reception& add(int pid);
  Reception* find(int pid);

 private:
  std::map<int, Reception> all_;
  std::unique_ptr<Reception*[]> of_packets_ = std::make_unique<Reception*[]>(pid_count);
};

}  // namespace sivane
