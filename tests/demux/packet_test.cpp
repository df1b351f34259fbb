// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The header of a packet, and length fields that lead out of it. Packets lie in heap blocks of their own
// size.
#include <gtest/gtest.h>

#include <sstream>

#include "expect_error.h"
#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;

TEST(PacketHeader, EachFieldHasItsBitsAndTheStreamStaysHexadecimal) {
  for (auto const& [packet, dump] : std::map<char const*, char const*>{
           {"47 FF FF FF", "tei: 1 pusi: 1 tp: 1 pid: 1fff tsc: 3 afc: 3 cc: f\nff"},
           {"47 80 01 40", "tei: 1 pusi: 0 tp: 0 pid: 1 tsc: 1 afc: 0 cc: 0\nff"},
           {"47 5A 00 2C", "tei: 0 pusi: 1 tp: 0 pid: 1a00 tsc: 0 afc: 2 cc: c\nff"},
           {"47 21 10 93", "tei: 0 pusi: 0 tp: 1 pid: 110 tsc: 2 afc: 1 cc: 3\nff"}}) {
    std::ostringstream os;
    Demux::TSHeader(HeapBlock(hex(packet)).data()).dump_state(os);
    os << 255;
    EXPECT_EQ(os.str(), dump);
  }
}

TEST(PacketHeader, NeedsTheSyncByte) {
  EXPECT_TRUE(throws([] { Demux::TSHeader(hex("48 00 00 00").data()); }, "TS syncbyte expected"));
}

TEST(PacketHeader, AdaptationFieldLengthCountsItself) {
  int length = -1;
  unsigned char const field = 255;
  Demux::AdaptionFieldHeader(&field, length);
  EXPECT_EQ(length, 256);
}

Bytes const section = hex("42 00 00");

/// Byte 4 is `count`, and behind the bytes that it counts stands `data`, as far as the packet goes.
Bytes packet_with(int control, bool start, int count, Bytes const& data) {
  Bytes packet = make_packet({.pid = pid, .start = start});
  packet[3] = static_cast<unsigned char>(control << 4);
  packet[4] = static_cast<unsigned char>(count);
  for (std::size_t i = 0, at = 5 + static_cast<std::size_t>(count); i < data.size() && at < 188;) {
    packet[at++] = data[i++];
  }
  return packet;
}

class PayloadBounds : public ::testing::Test {
 protected:
  PayloadBounds() {
    host.add_psi_handler(pid, 0x42);
    host.add_filter(pid, 7);
  }
  PushHost host;
};

TEST_F(PayloadBounds, EveryPointerField) {
  for (int const control : {0, 1}) {
    for (int pointer = 0; pointer < 256; ++pointer) {
      host.forget();
      EXPECT_EQ(host.push(packet_with(control, true, pointer, section)), 0);
      EXPECT_EQ(host.sections.size(), pointer <= 180 ? 1u : 0u) << pointer;
      host.push(packet_with(control, false, 0, Bytes(184, 0)));  // ends a section that has begun
      EXPECT_EQ(host.sections.size(), pointer <= 182 ? 1u : 0u) << pointer;
      EXPECT_EQ(host.filtered.size(), host.sections.size()) << pointer;
    }
  }
}

TEST_F(PayloadBounds, EveryAdaptationFieldLength) {
  for (int const control : {2, 3}) {
    for (int length = 0; length < 256; ++length) {
      host.forget();
      EXPECT_EQ(host.push(packet_with(control, true, length, Bytes{0} + section)), 0);
      EXPECT_EQ(host.sections.size(), length <= 179 ? 1u : 0u) << length;
      std::string const hooks = "ts 256 @4;field @" + std::to_string(std::min(5 + length, 188)) + ';';
      EXPECT_EQ(host.calls.substr(0, hooks.size()), hooks);
      host.push(packet_with(control, false, length, Bytes(184, 0)));
    }
  }
}

TEST_F(PayloadBounds, NoPayloadLeavesASectionInProgressAlone) {
  Bytes const a = patterned_section(0x42, 300);
  host.push(start_packet(pid, part(a, 0, 183)));
  for (int const length : {183, 184, 255}) {
    host.push(packet_with(3, true, length, {}) + packet_with(2, false, length, {}));
  }
  host.push(exact_packet(pid, false, part(a, 183, 300)));
  EXPECT_EQ(host.sections, Sections{a});
}

}  // namespace
}  // namespace sivane::testing
