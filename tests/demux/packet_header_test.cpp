// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include <sstream>

#include "expect_error.h"
#include "recording_host.h"

namespace sivane::testing {
namespace {

std::string dumped(char const* packet) {
  std::ostringstream os;
  Demux::TSHeader(HeapBlock(hex(packet)).data()).dump_state(os);
  os << 255;
  return os.str();
}

TEST(PacketHeader, EachFieldHasItsBits) {
  EXPECT_EQ(dumped("47 00 00 00"), "tei: 0 pusi: 0 tp: 0 pid: 0 tsc: 0 afc: 0 cc: 0\nff");
  EXPECT_EQ(dumped("47 FF FF FF"), "tei: 1 pusi: 1 tp: 1 pid: 1fff tsc: 3 afc: 3 cc: f\nff");
  EXPECT_EQ(dumped("47 80 01 40"), "tei: 1 pusi: 0 tp: 0 pid: 1 tsc: 1 afc: 0 cc: 0\nff");
  EXPECT_EQ(dumped("47 5A 00 2C"), "tei: 0 pusi: 1 tp: 0 pid: 1a00 tsc: 0 afc: 2 cc: c\nff");
  EXPECT_EQ(dumped("47 21 10 93"), "tei: 0 pusi: 0 tp: 1 pid: 110 tsc: 2 afc: 1 cc: 3\nff");
}

TEST(PacketHeader, NeedsTheSyncByte) {
  EXPECT_TRUE(throws([] { Demux::TSHeader(hex("48 00 00 00").data()); }, "TS syncbyte expected"));
}

TEST(PacketHeader, AdaptationFieldLengthCountsItself) {
  for (const int count : {0, 1, 183, 255}) {
    int length = -1;
    const auto field = static_cast<unsigned char>(count);
    Demux::AdaptionFieldHeader(&field, length);
    EXPECT_EQ(length, count + 1);
  }
}

}  // namespace
}  // namespace sivane::testing
