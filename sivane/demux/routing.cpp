// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What every packet goes through. It stands in one source with the push driver, which takes it all into its
// loop: calls between them would cost more than a packet that nobody wants.
#include <sivane/demux/demux.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/trace_log.h>

#include <algorithm>
#include <cstddef>
#include <ostream>

namespace sivane {

namespace {

constexpr int header_size = 4;

// A stream larger than the caches is waited for; asking early costs nothing where it is not. Headers are
// asked for into the second cache, since more can be under way to it than to the first. What is behind those
// of wanted packets follows once the header has come.
constexpr int headers_ahead = 96;
constexpr int payloads_ahead = 32;
constexpr int second_cache = 2;
constexpr std::ptrdiff_t line_size = 64;

int pid_of(unsigned char const* packet) { return (packet[1] & 0x1F) << 8 | packet[2]; }

bool has_adaptation_field(Demux::TSHeader const& header) {
  return (header.adaptation_field_control & 2) != 0;
}

}  // namespace

Demux::TSHeader::TSHeader(unsigned char const* packet)
    : transport_error_indicator(packet[1] >> 7),
      payload_unit_start_indicator(packet[1] >> 6 & 1),
      transport_priority(packet[1] >> 5 & 1),
      pid(pid_of(packet)),
      transport_scrambling_control(packet[3] >> 6),
      adaptation_field_control(packet[3] >> 4 & 3),
      continuity_counter(packet[3] & 0xF) {
  if (packet[0] != ts_sync_byte) throw error("TS syncbyte expected");
}

void Demux::TSHeader::dump_state(std::ostream& os) const {
  os << "tei: " << transport_error_indicator << " pusi: " << payload_unit_start_indicator
     << " tp: " << transport_priority << " pid: " << std::hex << pid
     << " tsc: " << transport_scrambling_control << " afc: " << adaptation_field_control
     << " cc: " << continuity_counter << std::endl;
}

Demux::AdaptionFieldHeader::AdaptionFieldHeader(unsigned char const* field, int& length) {
  length = field[0] + 1;
}

void Demux::route_packet(unsigned char const* packet) {
  if (receptions_ != nullptr) {
    route_watched(pid_of(packet), packet);
    return;
  }
  TSHeader header(packet);
  Payload const payload = show_packet(header, packet);
  if (PidHandler* const handler = find_handler(header.pid))
    handler->parse(header, payload.data, payload.size);
}

Demux::Payload Demux::show_packet(TSHeader const& header, unsigned char const* packet) {
  on_ts_packet(header, packet + header_size);
  Payload const payload = payload_of(header, packet);
  if (has_adaptation_field(header)) {
    int field_length = 0;
    AdaptionFieldHeader const field(packet + header_size, field_length);
    on_adaption_field_header_(field, payload.data);
  }
  return payload;
}

Demux::Payload Demux::payload_of(TSHeader const& header, unsigned char const* packet) {
  int offset = header_size;
  if (has_adaptation_field(header)) offset = std::min(header_size + 1 + packet[header_size], ts_packet_size);
  return {packet + offset, ts_packet_size - offset};
}

int DemuxPush::push_data(unsigned char const* data, int size) {
  if (size % ts_packet_size != 0) {
    log_write(1, "Buffer length %d not a multiple of 188 bytes", size);
    return -1;
  }
  return push_packets({data, size / ts_packet_size, ts_packet_size, next_offset_});
}

[[gnu::flatten]] int DemuxPush::push_packets(PacketRun const& run) {
  std::ptrdiff_t const stride = run.stride;
  std::uint64_t offset = run.offset;  // kept here: read back from the object, it would be waited for
  unsigned char const* packet = run.first;
  next_offset_ = offset;
  int result = 0;
  for (int left = run.count; left > 0 && result == 0; --left, packet += stride) {
    if (left > headers_ahead) __builtin_prefetch(packet + headers_ahead * stride, 0, second_cache);
    if (left > payloads_ahead) {
      unsigned char const* const soon = packet + payloads_ahead * stride;
      if (handlers_[static_cast<std::size_t>(pid_of(soon))] != nullptr) {
        __builtin_prefetch(soon + line_size);
        __builtin_prefetch(soon + 2 * line_size);
        __builtin_prefetch(soon + ts_packet_size - 1);
      }
    }
    packet_offset_ = offset;
    next_offset_ = offset += static_cast<std::uint64_t>(stride);
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
