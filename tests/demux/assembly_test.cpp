// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// From payloads to sections: the state of one handler, and small streams with what comes out of them.
#include <gtest/gtest.h>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
Bytes const whole = patterned_section(0x42, 20);

enum State { idle, assembling, invalidated };
constexpr bool start = true, continuation = false;

struct Row {
  State state;  // `assembling` holds the first five bytes of `whole`
  bool kind;
  Bytes bytes;
  bool is_delivered, in_section;
  int section_size;
};

std::vector<Row> const rows = {
    {idle, start, part(whole, 0, 10), false, true, 10},
    {idle, start, part(whole, 0, 1), false, true, 1},
    {idle, start, {}, false, true, 0},
    {idle, start, whole, true, false, 0},
    {idle, start, whole + Bytes(8192 - 20, 0xFF), true, false, 0},
    {idle, start, whole + Bytes(8193 - 20, 0xFF), false, false, 0},
    {idle, continuation, whole, false, false, 0},
    {assembling, start, part(whole, 0, 2), false, true, 2},
    {assembling, start, whole, true, false, 0},
    {assembling, start, {}, false, true, 0},
    {assembling, continuation, part(whole, 5, 19), false, true, 19},
    {assembling, continuation, part(whole, 5, 20), true, false, 0},
    {assembling, continuation, part(whole, 5, 20) + Bytes(164, 0xFF), true, false, 0},
    {invalidated, start, part(whole, 0, 10), false, true, 10},
    {invalidated, start, whole, true, false, 0},
    {invalidated, continuation, whole, false, true, 0},
};

template <class Handler>
void check_row(Row const& row, Handler& handler) {
  Demux::TSHeader const header(make_packet({.pid = pid}).data());
  if (row.state != idle) handler.parse(header, true, whole.data(), 5);
  if (row.state == invalidated) handler.section_size = 0;
  HeapBlock const data(row.bytes);
  handler.parse(header, row.kind, data.data(), data.size());
  EXPECT_EQ(handler.in_section, row.in_section);
  EXPECT_EQ(handler.section_size, row.section_size);
}

TEST(Assembly, EveryStateWithEveryKindOfPacket) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE("row " + std::to_string(i));
    PushHost host;
    Demux::PSIHandler handler(host, 0x42);
    check_row(rows[i], handler);
    EXPECT_EQ(host.sections, rows[i].is_delivered ? Sections{whole} : Sections());
    Demux::PSIFilterHandler filter(host, nullptr, nullptr, 0, 7);
    check_row(rows[i], filter);
    EXPECT_EQ(host.filtered, rows[i].is_delivered ? (Filtered{{7, whole}}) : Filtered());
  }
}

TEST(Assembly, InvalidateDropsTheTableHandlersBytesOnly) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  host.add_filter(pid, 7);
  Bytes const section = patterned_section(0x42, 300);
  host.push(start_packet(pid, part(section, 0, 183)));
  host.of_pid(pid).invalidate();
  EXPECT_TRUE(host.of_table(pid, 0x42).in_section);
  EXPECT_EQ(host.of_table(pid, 0x42).section_size, 0);
  EXPECT_EQ(host.of_pid(pid).current, &host.of_table(pid, 0x42));
  host.push(exact_packet(pid, false, part(section, 183, 300)));
  EXPECT_TRUE(host.sections.empty());
  EXPECT_EQ(host.filtered.size(), 1u);
}

Bytes const s20 = patterned_section(0x42, 20), s188 = patterned_section(0x42, 188),
            s300 = patterned_section(0x42, 300), s366 = patterned_section(0x42, 366),
            s500 = patterned_section(0x42, 500), other30 = patterned_section(0x46, 30),
            other300 = patterned_section(0x46, 300), unhandled300 = patterned_section(0x4A, 300);

Bytes head(Bytes const& section) { return start_packet(pid, part(section, 0, 183)); }
Bytes next(Bytes const& payload) { return exact_packet(pid, false, payload); }
Bytes tail(Bytes const& section, int from = 183) {
  return next(part(section, from, static_cast<int>(section.size())));
}
/// A start packet whose payload, with the pointer_field in front, is filled up with stuffing.
Bytes pointed(Bytes const& payload) { return make_packet({.pid = pid, .start = true, .payload = payload}); }

struct Case {
  char const* name;
  Bytes stream;
  Sections expected;
};

std::vector<Case> const cases = {
    {"only the first start of a packet",
     start_packet(pid, s20 + other30) + start_packet(pid, other30),
     {s20, other30}},
    {"a tail, and the next section of its handler",
     head(s188) + pointed(Bytes{5} + part(s188, 183, 188) + s20),
     {s188, s20}},
    {"a tail, and another handler's section",
     head(s188) + pointed(Bytes{5} + part(s188, 183, 188) + other30),
     {s188, other30}},
    {"a tail up to the packet's end", head(s366) + pointed(Bytes{183} + part(s366, 183, 366)), {s366}},
    {"a pointer one byte behind the packet",
     head(s366) + pointed(Bytes{184} + Bytes(183, 1)) + tail(s366),
     {s366}},
    {"a tail that is too short",
     head(s300) + pointed(Bytes{5} + part(s300, 183, 188) + s20) + tail(s300, 188),
     {s20}},
    {"a lost packet", head(s500) + tail(s500, 367) + head(s300) + tail(s300), {s300}},
    {"other PIDs between",
     head(s500) + exact_packet(pid + 1, true, Bytes(184, 0x42)) + next(part(s500, 183, 367)) +
         exact_packet(pid - 1, false, Bytes(184, 0x42)) + tail(s500, 367),
     {s500}},
    {"elementary stream starts between",
     head(s300) + pointed(hex("00 00 00 01 42 00 05")) + exact_packet(pid, true, hex("00 00 00 01")) +
         tail(s300),
     {s300}},
    {"three zero bytes begin a section",
     pointed(hex("00 00 00 02 AA BB")) + pointed(hex("00 00 00 00")) + pointed(hex("00 00 01 01")),
     {hex("00 00 02 AA BB"), hex("00 00 00")}},
    {"an unhandled table takes the continuations away", head(s300) + head(unhandled300) + tail(s300), {}},
    {"another table takes the continuations over",
     head(s300) + head(other300) + tail(other300) + tail(s300),
     {other300}},
    {"a transport error, scrambling and a jump of the continuity counter",
     part(head(s300), 0, 1) + Bytes{0xC1, 0x00, 0xD9} + part(head(s300), 4, 188) + tail(s300),
     {s300}},
};

class SectionStream : public ::testing::Test {
 protected:
  SectionStream() {
    for (int const id : {0x00, 0x42, 0x46}) host.add_psi_handler(pid, id);
    host.add_psi_handler(pid, &value, &mask, 1, 7);
  }
  unsigned char const value = 0x42, mask = 0xFF;
  PushHost host;
};

TEST_F(SectionStream, GivesTheExpectedSections) {
  for (Case const& c : cases) {
    auto const size = static_cast<int>(c.stream.size());
    Filtered filtered;
    for (Bytes const& section : c.expected) {
      if (section[0] == value) filtered.emplace_back(7, section);
    }
    for (int const piece : {size, 188}) {
      host.forget();
      for (int at = 0; at < size; at += piece) host.push(part(c.stream, at, at + piece));
      EXPECT_EQ(host.sections, c.expected) << c.name;
      EXPECT_EQ(host.filtered, filtered) << c.name;
    }
  }
}

TEST_F(SectionStream, SizesAroundAPacketsEnd) {
  for (int size = 7; size <= 187; ++size) {
    host.forget();
    Bytes const section = patterned_section(0x42, size);
    host.push(start_packet(pid, part(section, 0, std::min(size, 183))));
    EXPECT_EQ(host.sections.size(), size <= 183 ? 1u : 0u) << size;
    if (size > 183) host.push(tail(section));
    EXPECT_EQ(host.sections, Sections{section}) << size;
  }
}

TEST_F(SectionStream, LargestSectionWaitsForItsLastByte) {
  Bytes const largest = patterned_section(0x42, 4098);
  host.push(exact_packet(pid, true, Bytes{0} + part(largest, 0, 49)));
  for (int done = 49; done < 4097; done += 184) host.push(next(part(largest, done, done + 184)));
  EXPECT_EQ(host.of_table(pid, 0x42).section_size, 4097);
  host.push(next(Bytes{largest.back()} + Bytes(183, 0xFF)));
  EXPECT_EQ(host.sections, Sections{largest});
}

TEST_F(SectionStream, AnUnhandledStartLeavesNoCurrentHandler) {
  host.push(head(s300) + head(unhandled300));
  EXPECT_EQ(host.of_pid(pid).current, nullptr);
  EXPECT_TRUE(host.of_table(pid, 0x42).in_section);
  EXPECT_EQ(host.of_table(pid, 0x42).section_size, 183);
}

TEST_F(SectionStream, StuffingIsATableIdLikeAnyOther) {
  host.push(pointed({0}));
  EXPECT_EQ(host.of_pid(pid).current, nullptr);
  host.add_psi_handler(pid, 0xFF);
  host.push(pointed({0}));
  for (int i = 0; i < 22; ++i) host.push(next(Bytes(184, 0xFF)));
  EXPECT_EQ(host.sections, Sections{Bytes(4098, 0xFF)});
}

TEST_F(SectionStream, ShortSectionsShowTheirSixthByteOrWhatStandsThere) {
  host.push(start_packet(pid, s20) + start_packet(pid, hex("42 00 02 01 02 77 99")));
  EXPECT_EQ(host.calls, "ts 256 @4;section 256 66 108;filter;ts 256 @192;section 256 66 153;filter;");
}

}  // namespace
}  // namespace sivane::testing
