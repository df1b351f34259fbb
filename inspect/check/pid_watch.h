// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <utility>
#include <vector>

#include "check/observation.h"

namespace inspect {

/// Looks at the headers of packets: counters, error bits, clocks and time stamps. What it sees goes into a
/// list of observations.
class PidWatch {
 public:
  explicit PidWatch(std::vector<Observation>& seen) : seen_(seen), pids_(pid_count) {}

  /// True if the packet has a payload of a PID in which sections are looked for.
  bool take(unsigned char const* packet, Place const& place);

  /// False if it does already.
  bool look_for_sections(int pid) { return !std::exchange(pids_[index(pid)].has_sections, true); }
  void look_for_time_stamps(int pid) { pids_[index(pid)].has_time_stamps = true; }

  /// The PIDs that had packets since the last call; their times are still to be filled in.
  struct Span {
    int pid;
    std::uint64_t packets, first_packet, first_offset, last_offset;
  };
  std::vector<Span> take_spans();

 private:
  static constexpr std::size_t pid_count = 0x2000;
  static constexpr int no_counter = -1;
  struct Pid {
    std::uint64_t packets = 0;  // of the span
    std::uint64_t first_packet = 0, first_offset = 0, last_offset = 0;
    std::uint64_t content = 0;  // some of the bytes of the last packet, to know a repetition by
    int counter = no_counter;
    int repetitions = 0;
    bool has_sections = false, has_time_stamps = false, was_scrambled = false;
  };

  static std::size_t index(int pid) { return static_cast<std::size_t>(pid) % pid_count; }
  void note_packet(Pid& state, int pid, Place const& place);
  void note_scrambling(Pid& state, int pid, Place const& place);
  void note_counter(Pid& state, int pid, unsigned char const* packet, Place const& place);
  void note_pcr(int pid, unsigned char const* packet, Place const& place);
  void note(Observation::Kind kind, int pid, Place const& place, std::uint64_t value = 0) {
    seen_.push_back({kind, pid, place, value});
  }

  std::vector<Observation>& seen_;
  std::vector<Pid> pids_;
  std::vector<int> of_span_;  // PIDs that had a packet
};

}  // namespace inspect
