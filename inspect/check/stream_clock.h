// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>

namespace inspect {

/// The time of a stream: that of the PCRs of one PID (ISO/IEC 13818-1, 2.4.3.5), by the place of a packet
/// between them. What lies before the first PCR has the rate that follows it, what lies behind the last one
/// the rate before it. Where a PCR jumps the time goes on at the rate that it had.
///
/// Time is known in steps: up to `known_up_to`, which each PCR of the clock moves on.
class StreamClock {
 public:
  /// True if time is known further than before.
  bool take_pcr(int pid, std::uint64_t offset, std::uint64_t pcr, bool is_announced_jump);
  /// Makes time known up to `offset` by the rate that it had. False, and nothing done, without a rate.
  bool run_on_to(std::uint64_t offset);
  /// Makes time known by what a clock of ours says; where there are no PCRs. The first call is time 0.
  void take_arrival(std::uint64_t offset, std::int64_t nanoseconds);

  bool is_by_pcr() const { return is_running() && !is_by_arrival_; }
  bool is_running() const { return ticks_of_byte_ > 0; }
  /// In ticks since the stream's first byte, for places from the step before the last one on; -1 without a
  /// rate.
  std::int64_t ticks_at(std::uint64_t offset) const;

 private:
  struct Step {
    std::uint64_t offset = 0;
    std::int64_t ticks = 0;
  };

  bool start(std::uint64_t offset, std::uint64_t pcr, bool is_announced_jump);
  bool follow(std::uint64_t offset, std::uint64_t pcr, bool is_announced_jump);
  void change_to(int pid, std::uint64_t offset, std::uint64_t pcr);
  void step_to(std::uint64_t offset, std::int64_t ticks);
  std::int64_t predicted(std::uint64_t offset) const;

  int pid_ = -1;  // of the PCRs
  std::uint64_t last_pcr_ = 0, last_pcr_offset_ = 0;
  std::int64_t last_pcr_ticks_ = 0;
  double ticks_of_byte_ = 0;  // 0 before it is known
  Step before_, last_;
  bool is_by_arrival_ = false;
  std::int64_t first_arrival_ = -1;
};

/// From one PCR to a later one, over the end of its range.
std::int64_t pcr_difference(std::uint64_t from, std::uint64_t to);

/// Whether a PCR has jumped: it is not 0 to 100 ms after the one before, and the time that passed is no
/// reason.
bool is_pcr_jump(std::int64_t difference, std::int64_t passed);

}  // namespace inspect
