// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The push driver and the pull drivers on one source.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "recording_host.h"

namespace sivane::testing {
namespace {

using Calls = std::vector<std::string>;
constexpr int pid = 0x100;
const Bytes plain = make_packet({.pid = pid});
const Bytes with_field = make_packet(
    {.pid = pid, .start = true, .adaptation = 7, .payload = Bytes{0} + patterned_section(0x42, 20)});
const Bytes out_of_sync = [] {
  Bytes packet = plain;
  packet[0] = 0x48;
  return packet;
}();

std::ptrdiff_t count(Calls const& calls, std::string const& call) {
  return std::count(calls.begin(), calls.end(), call);
}

TEST(Push, ResultsByBuffer) {
  struct Case {
    Bytes buffer;
    int result;
    Calls calls;
  };
  const std::vector<Case> cases = {
      {{}, 0, {}},
      {Bytes(187, 0x47), -1, {}},
      {plain + Bytes{0x47}, -1, {}},
      {plain, 0, {"ts 256 @4"}},
      {plain + plain, 0, {"ts 256 @4", "ts 256 @192"}},
      {out_of_sync, 2, {}},
      {plain + out_of_sync + plain, 2, {"ts 256 @4"}},
      {plain + with_field, 0, {"ts 256 @4", "ts 256 @192", "field @200"}},
  };
  for (Case const& c : cases) {
    PushHost host;
    EXPECT_EQ(host.push(c.buffer), c.result);
    EXPECT_EQ(host.calls, c.calls);
  }
  PushHost host;
  EXPECT_EQ(host.push_data(nullptr, -187), -1);
  EXPECT_EQ(host.push_data(nullptr, -188), 0);
}

TEST(Push, HooksComeInOrderAlsoForTheTenthPacket) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  Bytes stream;
  for (int i = 0; i < 9; ++i) stream = stream + plain;
  host.push(stream + with_field);
  const Calls tail(host.calls.end() - 3, host.calls.end());
  EXPECT_EQ(tail, (Calls{"ts 256 @1696", "field @1704",
                         "section 256 66 " + std::to_string(patterned_section(0x42, 20)[6])}));
}

TEST(Push, StopHasNoEffect) {
  PushHost host;
  host.on_call = [&](std::string const&) { host.stop(7); };
  EXPECT_EQ(host.push(plain + plain), 0);
  EXPECT_EQ(host.push(plain), 0);
  EXPECT_EQ(host.calls.size(), 3u);
}

class IstreamHost {
 public:
  explicit IstreamHost(Bytes const& bytes) : stream({bytes.begin(), bytes.end()}), host(stream) {}
  std::istringstream stream;
  RecordingHost<DemuxIstream> host;
};

TEST(Istream, ReadsWholePacketsToTheEnd) {
  for (const int packets : {0, 1, 3}) {
    for (const std::size_t rest : {0u, 1u, 100u, 187u}) {
      Bytes bytes;
      for (int i = 0; i < packets; ++i) bytes = bytes + plain;
      IstreamHost source(bytes + Bytes(rest, 0x47));
      EXPECT_EQ(source.host.start(), 1);
      EXPECT_EQ(count(source.host.calls, "raw"), packets);
      EXPECT_EQ(count(source.host.calls, "ts 256"), packets);
    }
  }
}

TEST(Istream, ShowsEachPacketRawAndThenUnpacked) {
  IstreamHost source(with_field);
  source.host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(source.host.start(), 1);
  EXPECT_EQ(source.host.calls, (Calls{"raw", "ts 256", "field",
                                      "section 256 66 " + std::to_string(patterned_section(0x42, 20)[6])}));
}

TEST(Istream, LostSyncEndsTheRun) {
  IstreamHost source(plain + plain + out_of_sync + plain);
  EXPECT_EQ(source.host.start(), 2);
  EXPECT_EQ(source.host.exit_code, 1);
  EXPECT_EQ(source.host.calls, (Calls{"raw", "ts 256", "raw", "ts 256", "raw"}));
}

TEST(Istream, StopTakesEffectAtTheNextPacket) {
  IstreamHost source(plain + plain + plain + plain);
  source.host.on_call = [&](std::string const&) {
    if (count(source.host.calls, "ts 256") == 2) source.host.stop(7);
  };
  EXPECT_EQ(source.host.start(), 7);
  EXPECT_EQ(count(source.host.calls, "raw"), 2);
  EXPECT_EQ(source.stream.tellg(), 3 * 188);  // one more was read, and dropped
  EXPECT_EQ(source.host.start(), 7);
  EXPECT_EQ(source.stream.tellg(), 4 * 188);
  EXPECT_EQ(count(source.host.calls, "raw"), 2);
}

TEST(Istream, StopInTheLastPacketGivesTheResult) {
  IstreamHost source(plain);
  source.host.on_call = [&](std::string const&) { source.host.stop(7); };
  EXPECT_EQ(source.host.start(), 7);
}

TEST(Istream, SectionsSpanRuns) {
  const Bytes section = patterned_section(0x42, 200);
  IstreamHost source(exact_packet(pid, true, Bytes{0} + part(section, 0, 183)));
  source.host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(source.host.start(), 1);
  const Bytes rest = exact_packet(pid, false, part(section, 183, 200));
  source.stream.clear();
  source.stream.str({rest.begin(), rest.end()});
  EXPECT_EQ(source.host.start(), 1);
  EXPECT_EQ(source.host.sections, Sections{section});
}

TEST(Istream, HookExceptionsPassThrough) {
  IstreamHost source(plain + plain);
  source.host.on_call = [](std::string const&) { throw 7; };
  EXPECT_THROW(source.host.start(), int);
  EXPECT_EQ(source.stream.tellg(), 188);
}

/// A source of the host's own: gives these answers in turn and false behind them.
class OwnSource : public RecordingHost<Demux> {
 public:
  struct Answer {
    bool result;
    int got;
  };
  std::vector<Answer> answers;
  std::size_t reads = 0;

 private:
  bool read_buf(unsigned char* buffer, int size, int& got) override {
    EXPECT_EQ(size, 188);
    if (reads == answers.size()) return ++reads, false;
    std::copy(plain.begin(), plain.end(), buffer);
    got = answers[reads].got;
    return answers[reads++].result;
  }
};

TEST(Pull, EndsAtAFalseOrAPartialRead) {
  struct Case {
    std::vector<OwnSource::Answer> answers;
    std::size_t reads, packets;
  };
  for (Case const& c : {Case{{}, 1, 0},
                        {{{true, 188}, {true, 188}}, 3, 2},
                        {{{true, 188}, {true, 187}}, 2, 1},
                        {{{true, 189}}, 1, 0},
                        {{{false, 188}}, 1, 0},
                        {{{true, 0}}, 1, 0}}) {
    OwnSource source;
    source.answers = c.answers;
    EXPECT_EQ(source.start(), 1);
    EXPECT_EQ(source.reads, c.reads);
    EXPECT_EQ(source.calls.size(), 2 * c.packets);
  }
}

}  // namespace
}  // namespace sivane::testing
