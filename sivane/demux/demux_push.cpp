// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/demux.h>
#include <sivane/foundation/trace_log.h>

namespace sivane {

namespace {
/// A stream larger than the caches is waited for; asking this early costs nothing where it is not.
constexpr int prefetch_distance = 32 * ts_packet_size;
}  // namespace

int DemuxPush::push_data(unsigned char const* data, int size) {
  if (size % ts_packet_size != 0) {
    log_write(1, "Buffer length %d not a multiple of 188 bytes", size);
    return -1;
  }
  for (int offset = 0; offset < size; offset += ts_packet_size) {
    unsigned char const* const packet = data + offset;
    if (offset < size - prefetch_distance) __builtin_prefetch(packet + prefetch_distance);
    if (packet[0] != ts_sync_byte) {
      log_write(1, "TS sync byte not found: %02X", static_cast<unsigned int>(packet[0]));
      return 2;
    }
    route_packet(packet);
  }
  return 0;
}

bool DemuxPush::read_buf(unsigned char*, int, int& got) {
  got = 0;
  return false;
}

}  // namespace sivane
