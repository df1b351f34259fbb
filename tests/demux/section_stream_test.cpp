// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Small streams, packet by packet, and the sections that come out of them.
#include <gtest/gtest.h>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;

Bytes first(Bytes const& payload) { return exact_packet(pid, true, payload); }
Bytes next(Bytes const& payload) { return exact_packet(pid, false, payload); }
/// A start packet whose payload is filled up with stuffing.
Bytes stuffed(Bytes const& payload) { return make_packet({.pid = pid, .start = true, .payload = payload}); }

class SectionStream : public ::testing::Test {
 protected:
  SectionStream() {
    host.add_psi_handler(pid, 0x42);
    host.add_psi_handler(pid, 0x46);
  }
  PushHost host;
};

TEST_F(SectionStream, FirstSectionOfAPacketIsDeliveredAlone) {
  const Bytes a = patterned_section(0x42, 20), b = patterned_section(0x46, 30);
  host.push(stuffed(Bytes{0} + a + b) + stuffed(Bytes{0} + b));
  EXPECT_EQ(host.sections, (Sections{a, b}));
  EXPECT_EQ(host.calls, (std::vector<std::string>{"ts 256 @4", "section 256 66 " + std::to_string(a[6]),
                                                  "ts 256 @192", "section 256 70 " + std::to_string(b[6])}));
}

TEST_F(SectionStream, SizesAroundAPacketsEnd) {
  for (int size = 7; size <= 187; ++size) {
    host.sections.clear();
    const Bytes section = patterned_section(0x42, size);
    host.push(stuffed(Bytes{0} + part(section, 0, std::min(size, 183))));
    EXPECT_EQ(host.sections.size(), size <= 183 ? 1u : 0u) << size;
    if (size > 183) host.push(next(part(section, 183, size)));
    EXPECT_EQ(host.sections, Sections{section}) << size;
  }
}

TEST_F(SectionStream, TailBehindThePointerEndsTheSectionInProgress) {
  const Bytes a = patterned_section(0x42, 188);
  for (const int id : {0x42, 0x46}) {  // the same handler, and another one
    host.sections.clear();
    const Bytes b = patterned_section(id, 30);
    host.push(first(Bytes{0} + part(a, 0, 183)));
    host.push(stuffed(Bytes{5} + part(a, 183, 188) + b));
    EXPECT_EQ(host.sections, (Sections{a, b}));
  }
}

TEST_F(SectionStream, TailThatIsTooShortIsDroppedForTheNextSection) {
  const Bytes a = patterned_section(0x42, 300), b = patterned_section(0x42, 40);
  host.push(first(Bytes{0} + part(a, 0, 183)) + stuffed(Bytes{5} + part(a, 183, 188) + b));
  host.push(next(part(a, 188, 300)));
  EXPECT_EQ(host.sections, Sections{b});
}

TEST_F(SectionStream, LostPacketLosesItsSectionOnly) {
  const Bytes a = patterned_section(0x42, 500), b = patterned_section(0x42, 300);
  host.push(first(Bytes{0} + part(a, 0, 183)) + next(part(a, 367, 500)));
  EXPECT_TRUE(host.sections.empty());
  host.push(first(Bytes{0} + part(b, 0, 183)) + next(part(b, 183, 300)));
  EXPECT_EQ(host.sections, Sections{b});
}

TEST_F(SectionStream, SpansCallsAndOtherPids) {
  const Bytes a = patterned_section(0x42, 500);
  host.push(first(Bytes{0} + part(a, 0, 183)));
  host.push(exact_packet(pid + 1, true, Bytes(184, 0x42)));
  host.push(next(part(a, 183, 367)));
  EXPECT_TRUE(host.sections.empty());
  host.push(exact_packet(pid - 1, false, Bytes(184, 0x42)) + next(part(a, 367, 500)));
  EXPECT_EQ(host.sections, Sections{a});
}

TEST_F(SectionStream, LargestSection) {
  const Bytes largest = patterned_section(0x42, 4098);
  PacketWriter writer;
  writer.section(pid, largest);
  host.push(writer.stream());
  EXPECT_EQ(host.sections, Sections{largest});
  // The largest that a buffer ever holds: all but a byte, and a whole payload behind.
  host.push(first(Bytes{0} + part(largest, 0, 49)));
  for (int done = 49; done < 4097; done += 184) host.push(next(part(largest, done, done + 184)));
  EXPECT_EQ(host.handler(pid, 0x42).section_size, 4097);
  host.push(next(Bytes{largest.back()} + Bytes(183, 0xFF)));
  EXPECT_EQ(host.sections, (Sections{largest, largest}));
}

TEST_F(SectionStream, ElementaryStreamStartChangesNothing) {
  const Bytes a = patterned_section(0x42, 300);
  const Bytes pes = hex("00 00 00 01 42 00 05");
  host.add_psi_handler(pid, 0x00);
  host.add_psi_handler(pid, nullptr, nullptr, 0, 7);
  host.push(first(Bytes{0} + part(a, 0, 183)) + stuffed(pes) + first(hex("00 00 00 01")));
  EXPECT_EQ(host.handler(pid, 0x42).section_size, 183);
  host.push(next(part(a, 183, 300)));
  EXPECT_EQ(host.sections, Sections{a});
  EXPECT_EQ(host.filtered, (std::vector<PushHost::Filtered>{{7, a}}));
}

TEST_F(SectionStream, ThreeZeroBytesAloneAreASection) {
  host.add_psi_handler(pid, 0x00);
  host.push(stuffed(hex("00 00 00 02 AA BB")) + stuffed(hex("00 00 00 00")) + stuffed(hex("00 00 01 01")));
  EXPECT_EQ(host.sections, (Sections{hex("00 00 02 AA BB"), hex("00 00 00")}));
}

TEST_F(SectionStream, UnhandledTableTakesTheContinuationsAway) {
  const Bytes a = patterned_section(0x42, 300), other = patterned_section(0x4A, 300);
  host.push(first(Bytes{0} + part(a, 0, 183)) + first(Bytes{0} + part(other, 0, 183)));
  EXPECT_EQ(host.pid_handlers.at(pid)->current, nullptr);
  host.push(next(part(a, 183, 300)));
  EXPECT_TRUE(host.sections.empty());
  EXPECT_TRUE(host.handler(pid, 0x42).in_section);
  EXPECT_EQ(host.handler(pid, 0x42).section_size, 183);
}

TEST_F(SectionStream, OtherTableTakesTheContinuationsOver) {
  const Bytes a = patterned_section(0x42, 300), b = patterned_section(0x46, 300);
  host.push(first(Bytes{0} + part(a, 0, 183)) + first(Bytes{0} + part(b, 0, 183)));
  host.push(next(part(b, 183, 300)) + next(part(a, 183, 300)));
  EXPECT_EQ(host.sections, Sections{b});
  EXPECT_EQ(host.handler(pid, 0x42).section_size, 183);
}

TEST_F(SectionStream, StuffingIsATableIdLikeAnyOther) {
  host.push(stuffed({0}));
  EXPECT_EQ(host.pid_handlers.at(pid)->current, nullptr);
  host.add_psi_handler(pid, 0xFF);
  host.push(stuffed({0}));
  EXPECT_EQ(host.pid_handlers.at(pid)->current, &host.handler(pid, 0xFF));
  EXPECT_EQ(host.handler(pid, 0xFF).section_size, 183);
  for (int i = 0; i < 21; ++i) host.push(next(Bytes(184, 0xFF)));
  EXPECT_TRUE(host.sections.empty());
  host.push(next(Bytes(184, 0xFF)));
  EXPECT_EQ(host.sections, Sections{Bytes(4098, 0xFF)});
}

TEST_F(SectionStream, ErrorScramblingAndContinuityAreNotLookedAt) {
  const Bytes a = patterned_section(0x42, 300);
  host.push(make_packet({.pid = pid,
                         .start = true,
                         .continuity = 9,
                         .payload = Bytes{0} + part(a, 0, 183),
                         .error = true,
                         .scrambling = 3}));
  host.push(make_packet({.pid = pid, .continuity = 3, .payload = part(a, 183, 300), .error = true}));
  EXPECT_EQ(host.sections, Sections{a});
}

TEST_F(SectionStream, ShortSectionsShowTheirSixthByteOrWhatStandsThere) {
  host.push(stuffed(hex("00 42 00 02 01 02 77 99")));
  EXPECT_EQ(host.calls.back(), "section 256 66 153");  // 0x99 stands behind the section
}

}  // namespace
}  // namespace sivane::testing
