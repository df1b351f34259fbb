// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/packet.h>

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace inspect {

/// How many packets each PID has in each of some hundred parts of a stream. The parts are of equal size and
/// grow with the stream, so that memory does not.
class RateCourse {
 public:
  static constexpr std::size_t most_parts = 240;

  struct Part {
    std::map<int, std::uint32_t> packets;  ///< by PID
    std::uint32_t total = 0;
    std::int64_t end_ticks = -1;  ///< when it ends, in units of 27 MHz from the stream's start; -1 unknown
  };

  /// `ticks_at` tells the time of an offset, as far as it is known by now.
  void take(sivane::PacketRun const& run, std::function<std::int64_t(std::uint64_t)> const& ticks_at);

  std::vector<Part> const& parts() const { return parts_; }
  std::map<int, std::uint64_t> const& totals() const { return totals_; }

 private:
  void count(int pid);
  void merge_pairs();

  std::vector<Part> parts_;
  std::map<int, std::uint64_t> totals_;
  std::uint32_t packets_of_part_ = 64;
};

}  // namespace inspect
