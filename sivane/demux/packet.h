// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>

namespace sivane {

/// Bytes of a transport packet (ISO/IEC 13818-1, 2.4.3.2).
inline constexpr int ts_packet_size = 188;
inline constexpr unsigned char ts_sync_byte = 0x47;

/// Packets at equal distances in memory and in their stream, borrowed during a call.
struct PacketRun {
  unsigned char const* first;  ///< the sync byte of the first packet
  int count;                   ///< how many packets
  int stride;                  ///< bytes from one sync byte to the next: 188, 192 or 204
  std::uint64_t offset;        ///< where the first packet is in its stream, in bytes from the stream's start
};

}  // namespace sivane
