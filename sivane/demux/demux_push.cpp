// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/demux.h>
#include <sivane/foundation/trace_log.h>

#include <cstddef>

namespace sivane {

namespace {
/// A stream larger than the caches is waited for; asking this early costs nothing where it is not.
constexpr int prefetched_packets = 32;
}  // namespace

int DemuxPush::push_data(unsigned char const* data, int size) {
  if (size % ts_packet_size != 0) {
    log_write(1, "Buffer length %d not a multiple of 188 bytes", size);
    return -1;
  }
  return push_packets({data, size / ts_packet_size, ts_packet_size, next_offset_});
}

int DemuxPush::push_packets(PacketRun const& run) {
  std::ptrdiff_t const prefetch_distance = std::ptrdiff_t{prefetched_packets} * run.stride;
  unsigned char const* packet = run.first;
  next_offset_ = run.offset;
  int result = 0;
  for (int left = run.count; left > 0 && result == 0; --left, packet += run.stride) {
    if (left > prefetched_packets) __builtin_prefetch(packet + prefetch_distance);
    begin_packet(run.stride);
    if (packet[0] != ts_sync_byte) {
      log_write(1, "TS sync byte not found: %02X", static_cast<unsigned int>(packet[0]));
      result = 2;
    } else {
      route_packet(packet);
    }
  }
  pass_failure();
  return result;
}

bool DemuxPush::read_buf(unsigned char*, int, int& got) {
  got = 0;
  return false;
}

}  // namespace sivane
