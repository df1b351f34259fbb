// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "packet_writer.h"

#include <algorithm>
#include <stdexcept>

#include "plain_bytes.h"

namespace sivane::testing {

namespace {

constexpr std::size_t packet_size = 188;
constexpr std::size_t header_size = 4;
constexpr std::size_t payload_size = packet_size - header_size;

Bytes slice(Bytes const& bytes, std::size_t from, std::size_t count) {
  std::size_t const end = std::min(bytes.size(), from + count);
  return {bytes.begin() + static_cast<std::ptrdiff_t>(from),
          bytes.begin() + static_cast<std::ptrdiff_t>(end)};
}

}  // namespace

Bytes make_packet(Packet const& p) {
  Bytes bytes{0x47, low_byte((p.start ? 0x40 : 0) | p.pid >> 8), low_byte(p.pid),
              low_byte((p.adaptation >= 0 ? 0x30 : 0x10) | p.continuity)};
  if (p.adaptation >= 0) {
    bytes.push_back(low_byte(p.adaptation));
    bytes.resize(std::min(packet_size, bytes.size() + static_cast<std::size_t>(p.adaptation)), 0x00);
  }
  bytes = bytes + p.payload;
  if (bytes.size() > packet_size) throw std::invalid_argument("the payload does not fit in the packet");
  bytes.resize(packet_size, 0xFF);
  return bytes;
}

void PacketWriter::packet(Packet packet) {
  packet.continuity = continuity_[packet.pid]++ & 0xF;
  stream_ = std::move(stream_) + make_packet(packet);
}

void PacketWriter::section(int pid, Bytes const& section) { dense_sections(pid, {section}); }

void PacketWriter::dense_sections(int pid, std::vector<Bytes> const& sections) {
  Bytes all;
  std::vector<std::size_t> starts;
  for (Bytes const& section : sections) {
    starts.push_back(all.size());
    all = std::move(all) + section;
  }
  for (std::size_t done = 0; done < all.size();) {
    // A packet in which a section starts has one byte less for them: its pointer_field.
    auto const next = std::lower_bound(starts.begin(), starts.end(), done);
    bool const has_start = next != starts.end() && *next - done < payload_size - 1;
    // One byte too late for this packet, which an adaptation field of that byte then makes shorter.
    bool const starts_too_late = next != starts.end() && *next - done == payload_size - 1;
    Packet next_packet{.pid = pid, .start = has_start, .adaptation = starts_too_late ? 0 : -1};
    if (has_start) next_packet.payload.push_back(low_byte(static_cast<int>(*next - done)));
    std::size_t const room = payload_size - next_packet.payload.size() - (starts_too_late ? 1 : 0);
    // Bytes behind the last section are stuffing; a section in front of a start that is too far fills its
    // packet.
    next_packet.payload = std::move(next_packet.payload) + slice(all, done, room);
    packet(std::move(next_packet));
    done += room;
  }
}

void PacketWriter::null_packets(int count) {
  for (int i = 0; i < count; ++i) packet({.pid = 0x1FFF});
}

}  // namespace sivane::testing
