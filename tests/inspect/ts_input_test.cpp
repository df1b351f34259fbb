// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <packet_writer.h>

#include "run_inspect.h"

namespace sivane::testing {

namespace {

Bytes const pat = make_pat({{1, 0x100}});

/// More than a megabyte: longer than any block in which a host would read, with a section on both ends.
Bytes long_stream() {
  PacketWriter writer;
  writer.section(0, pat);
  writer.null_packets(6000);
  writer.section(0, pat);
  return writer.stream();
}

Bytes stream_without_pat(int packets) {
  PacketWriter writer;
  writer.null_packets(packets);
  return writer.stream();
}

std::string const line = "0x0000 0x00 " + hex_text(pat) + "\n";

}  // namespace

TEST(InspectTsInput, ReadsAFileAndStandardInputOfAnyLength) {
  for (char const* const arguments : {"sections @", "sections -", "sections --input ts -"}) {
    Outcome const run = inspect(arguments, long_stream());
    EXPECT_EQ(run.out, line + line);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
  }
  EXPECT_EQ(inspect("sections @", Bytes()).status, 0);
}

TEST(InspectTsInput, EndsWherePacketsAreOutOfSync) {
  Bytes stream = long_stream();
  stream[188 * 5990] = 0x48;
  struct Case {
    Bytes stream;
    char const* offset;
    std::string out;
  };
  Case const cases[] = {
      {stream, "1126120", line},
      {Bytes(188), "0", ""},
      {stream_without_pat(3) + hex("46") + Bytes(187), "564", ""},
      {make_packet({.pid = 0x1FFF}) + hex("00") + long_stream(), "188", ""},
  };
  for (Case const& c : cases) {
    Outcome const run = inspect("sections @", c.stream);
    EXPECT_EQ(run.out, c.out);
    EXPECT_NE(run.err.find(" " + std::string(c.offset) + ":"), std::string::npos) << run.err;
    EXPECT_EQ(line_count(run.err), 1) << run.err;
    EXPECT_EQ(run.status, 2);
  }
}

// A failed section is no more than status 1, and lost sync outranks it.
TEST(InspectTsInput, LostSyncOutranksAFailedSection) {
  PacketWriter writer;
  writer.section(0, make_pat({}, {.syntax_indicator = 0}));
  EXPECT_EQ(inspect("dump @", writer.stream()).status, 1);
  Outcome const run = inspect("dump @", writer.stream() + Bytes(188));
  EXPECT_EQ(run.out, "== 1 Pat\nerror 2 \n");
  EXPECT_EQ(run.status, 2);
}

TEST(InspectTsInput, ReportsAShortTailAndLeavesItOut) {
  for (int const size : {1, 187}) {
    // Bytes that are no packet's start: a tail is not looked at.
    Outcome const run = inspect("sections @", long_stream() + Bytes(static_cast<std::size_t>(size)));
    EXPECT_EQ(run.out, line + line);
    EXPECT_NE(run.err.find(" " + std::to_string(size) + " byte"), std::string::npos) << run.err;
    EXPECT_EQ(line_count(run.err), 1) << run.err;
    EXPECT_EQ(run.status, 0);
  }
}

}  // namespace sivane::testing
