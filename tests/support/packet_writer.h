// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>

#include "section_builder.h"

namespace sivane::testing {

/// One packet to be made from its fields. What the payload does not fill is stuffed with 0xFF.
struct Packet {
  int pid = 0;
  bool start = false;   ///< payload_unit_start_indicator
  int continuity = 0;   ///< 4 bits
  int adaptation = -1;  ///< adaptation_field_length, or -1 for no adaptation field
  Bytes payload = {};   ///< behind header and adaptation field, the pointer_field included
};

/// 188 bytes. Throws if the payload does not fit.
Bytes make_packet(Packet const& packet);

/// Writes a transport stream packet by packet and counts continuity for each PID.
class PacketWriter {
 public:
  /// Packs a section from the start of a packet of its own, and over as many as it needs.
  void section(int pid, Bytes const& section);
  /// Packs sections one behind the other, as broadcasts do: the pointer_field of a packet tells where the
  /// first section that starts in it begins, and several may start in one packet.
  void dense_sections(int pid, std::vector<Bytes> const& sections);
  /// Any other packet; its continuity counter is filled in.
  void packet(Packet packet);
  /// `count` packets of PID 0x1FFF.
  void null_packets(int count);

  Bytes const& stream() const { return stream_; }

 private:
  Bytes stream_;
  std::map<int, int> continuity_;
};

}  // namespace sivane::testing
