// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Inputs that come bit by bit: pipes, files that grow, the network. Network tests use the loopback address
// alone.
#include <gtest/gtest.h>
#include <packet_writer.h>
#include <signal.h>

#include <fstream>

#include "loopback_sender.h"
#include "run_inspect.h"
#include "temporary_folder.h"
#include "tool_process.h"

namespace sivane::testing {
namespace {

Bytes pat(int id) { return make_pat({{1, 0x1FF0}}, {.context_id = id}); }
std::string line(int id) { return "0x0000 0x00 " + hex_text(pat(id)) + "\n"; }

/// A PAT and null packets.
Bytes stream_of(int id) {
  PacketWriter writer;
  writer.section(0, pat(id));
  writer.null_packets(19);
  return writer.stream();
}

/// Seven packets, as most senders do. The first is a PAT; both it and the packet have the number.
Bytes datagram(int number) {
  PacketWriter others;
  others.null_packets(6);
  return make_packet({.start = true, .continuity = number, .payload = Bytes{0} + pat(number)}) +
         others.stream();
}

/// As RTP: with a contributor, an extension and padding, which all are to be taken off.
Bytes rtp(int number, Bytes const& payload) {
  auto const low = static_cast<unsigned char>(number);
  auto const high = static_cast<unsigned char>(number >> 8);
  return hex("B1 21") + Bytes{high, low} + hex("00000000 12345678 AAAAAAAA BEDE 0001 01020304") + payload +
         hex("00 00 03");
}

}  // namespace

TEST(InspectLive, ShowsWhatAPipeHasAtOnce) {
  ToolProcess tool("sections -");
  tool.write(stream_of(1));
  EXPECT_EQ(tool.read_until("\n"), line(1));
  tool.write(stream_of(2));
  EXPECT_EQ(tool.read_until(line(2)), line(1) + line(2));
  tool.close_input();
  EXPECT_EQ(tool.wait(), 0);
}

TEST(InspectLive, ASignalEndsARunAsItsInputWould) {
  for (int const number : {SIGINT, SIGTERM}) {
    ToolProcess document("xml -");
    document.write(stream_of(1));
    document.read_until("</Pat>");
    document.signal(number);
    EXPECT_EQ(document.wait(), 0);
    EXPECT_TRUE(document.output().ends_with("</Pat>\n</sections>\n")) << document.output();
  }
}

TEST(InspectLive, TimeEndsARun) {
  ToolProcess tool("sections --seconds 1 -");
  tool.write(stream_of(1));
  EXPECT_EQ(tool.wait(), 0);
  EXPECT_EQ(tool.output(), line(1));
}

TEST(InspectLive, FollowsAFileThatGrows) {
  TemporaryFolder const folder;
  auto const append = [path = folder.file("ts")](Bytes const& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::app) << std::string(bytes.begin(), bytes.end());
  };
  append(stream_of(1));
  ToolProcess tool("sections --follow " + folder.file("ts"));
  tool.read_until(line(1));
  append(stream_of(2));
  tool.read_until(line(2));
  tool.signal(SIGTERM);
  EXPECT_EQ(tool.wait(), 0);
}

TEST(InspectLive, TellsWhatTheNetworkLost) {
  LoopbackSender sender;
  ToolProcess tool("sections --packets 42 udp://@" + sender.place());
  sender.wait_for_listener();
  for (int const number : {0, 1, 3, 3, 5, 4}) sender.send(datagram(number));
  EXPECT_EQ(tool.wait(), 0);
  std::string const lines = line(0) + line(1) + line(3) + line(5) + line(4);
  EXPECT_EQ(tool.output(), lines + "sivane-inspect: PID 0x0000: 3 gaps, 16 missing packets\n");
}

TEST(InspectLive, PutsRtpBackInOrder) {
  LoopbackSender sender;
  ToolProcess tool("sections --packets 42 rtp://" + sender.place());
  sender.wait_for_listener();
  for (int const number : {0, 2, 1, 1, 3, 6, 4}) {
    sender.send(rtp(65533 + number, datagram(number)));
  }
  sender.send(hex("00 01 02"));
  EXPECT_EQ(tool.wait(), 0);
  std::string const summary =
      "sivane-inspect: PID 0x0000: 1 gap, 1 missing packet\nsivane-inspect: rtp://" + sender.place() +
      ": 1 RTP packet lost, 1 repeated or late, 2 out of order, 1 datagram not of RTP\n";
  EXPECT_EQ(tool.output(), line(0) + line(1) + line(2) + line(3) + line(4) + line(6) + summary);
}

}  // namespace sivane::testing
