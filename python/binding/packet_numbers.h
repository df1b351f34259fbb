// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/packet.h>

#include <cstdint>
#include <deque>

namespace sivane::python {

/// Tells which packet of a stream lies at an offset: where bytes are no packets the offset alone does not.
class PacketNumbers {
 public:
  /// The next packets of the stream.
  void add(PacketRun const& run) {
    if (stretches_.empty() || run.offset != end_ || run.stride != stretches_.back().stride) {
      if (stretches_.size() == most_stretches) stretches_.pop_front();
      stretches_.push_back({run.offset, count_, run.stride});
    }
    count_ += run.count;
    end_ = run.offset + static_cast<std::uint64_t>(run.count) * static_cast<std::uint64_t>(run.stride);
  }

  /// Packets so far.
  std::int64_t count() const { return count_; }
  /// From 0 on; -1 where that packet came too long ago.
  std::int64_t at(std::uint64_t offset) const {
    for (auto stretch = stretches_.rbegin(); stretch != stretches_.rend(); ++stretch) {
      if (stretch->offset > offset) continue;
      return stretch->number + static_cast<std::int64_t>((offset - stretch->offset) /
                                                         static_cast<std::uint64_t>(stretch->stride));
    }
    return -1;
  }

 private:
  // Without a gap between them.
  struct Stretch {
    std::uint64_t offset;
    std::int64_t number;  // of its first packet
    int stride;
  };
  // A section lasts for some packets, a damaged stretch of a stream for at least five.
  static constexpr std::size_t most_stretches = 4096;

  std::deque<Stretch> stretches_;
  std::int64_t count_ = 0;
  std::uint64_t end_ = 0;  // behind the last packet
};

}  // namespace sivane::python
