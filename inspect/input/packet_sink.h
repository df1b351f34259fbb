// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/packet.h>

#include <cstdint>

namespace inspect {

/// Bytes of a stream that are no packet.
struct SkippedRange {
  std::uint64_t offset, size;      ///< no bytes where some of the stream are lost
  std::uint64_t sync_byte_errors;  ///< wrong sync bytes while in sync, up to here
  std::uint64_t sync_losses;       ///< times that sync was lost, up to here
};

/// What takes the packets of a stream, in their order.
class PacketSink {
 public:
  virtual void take(sivane::PacketRun const& run) = 0;
  /// Before the packets behind it.
  virtual void take_skipped(SkippedRange const&) {}
  /// Before packets that came just now from a source that gives them as they are sent: nanoseconds since
  /// 1970-01-01 UTC.
  virtual void take_arrival(std::int64_t) {}

 protected:
  ~PacketSink() = default;
};

}  // namespace inspect
