// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Length fields that lead out of their packet. Each packet lies in a heap block of its own size.
#include <gtest/gtest.h>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
const Bytes section = hex("42 00 00");

/// Byte 4 is `count`, and behind the bytes that it counts stands `data`, as far as the packet goes.
Bytes packet_with(int control, bool start, int count, Bytes const& data) {
  Bytes packet = make_packet({.pid = pid, .start = start});
  packet[3] = static_cast<unsigned char>(control << 4);
  packet[4] = static_cast<unsigned char>(count);
  for (std::size_t i = 0, at = 5 + static_cast<std::size_t>(count); i < data.size() && at < 188; ++i, ++at) {
    packet[at] = data[i];
  }
  return packet;
}

class PayloadBounds : public ::testing::Test {
 protected:
  PayloadBounds() {
    host.add_psi_handler(pid, 0x42);
    host.add_psi_handler(pid, nullptr, nullptr, 0, 7);
  }
  PushHost host;
};

TEST_F(PayloadBounds, EveryPointerField) {
  for (const int control : {0, 1}) {
    for (int pointer = 0; pointer < 256; ++pointer) {
      host.sections.clear();
      host.filtered.clear();
      EXPECT_EQ(host.push(packet_with(control, true, pointer, section)), 0);
      EXPECT_EQ(host.sections.size(), pointer <= 180 ? 1u : 0u) << pointer;
      host.push(packet_with(control, false, 0, Bytes(184, 0)));  // ends a section that has begun
      EXPECT_EQ(host.sections.size(), pointer <= 182 ? 1u : 0u) << pointer;
      EXPECT_EQ(host.filtered.size(), host.sections.size()) << pointer;
    }
  }
}

TEST_F(PayloadBounds, EveryAdaptationFieldLength) {
  for (const int control : {2, 3}) {
    for (int length = 0; length < 256; ++length) {
      host.sections.clear();
      host.calls.clear();
      EXPECT_EQ(host.push(packet_with(control, true, length, Bytes{0} + section)), 0);
      EXPECT_EQ(host.sections.size(), length <= 179 ? 1u : 0u) << length;
      ASSERT_GE(host.calls.size(), 2u);
      EXPECT_EQ(host.calls[1], "field @" + std::to_string(std::min(5 + length, 188)));
      host.push(packet_with(control, false, length, Bytes(184, 0)));
    }
  }
}

TEST_F(PayloadBounds, NoPayloadLeavesASectionInProgressAlone) {
  const Bytes a = patterned_section(0x42, 300);
  host.push(exact_packet(pid, true, Bytes{0} + part(a, 0, 183)));
  for (const int length : {183, 184, 200, 255}) {
    host.push(packet_with(3, true, length, {}) + packet_with(2, false, length, {}));
  }
  host.push(exact_packet(pid, false, part(a, 183, 300)));
  EXPECT_EQ(host.sections, Sections{a});
}

}  // namespace
}  // namespace sivane::testing
