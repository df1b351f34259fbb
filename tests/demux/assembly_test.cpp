// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// From packets to sections: headers, length fields that lead out of a packet, and small streams with what
// comes out of them. Packets lie in heap blocks of their own size.
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

Bytes const s20 = patterned_section(0x42, 20), s184 = patterned_section(0x42, 184),
            s188 = patterned_section(0x42, 188), s300 = patterned_section(0x42, 300),
            s366 = patterned_section(0x42, 366), s500 = patterned_section(0x42, 500),
            other30 = patterned_section(0x46, 30), other300 = patterned_section(0x46, 300),
            unhandled300 = patterned_section(0x4A, 300);

Bytes head(Bytes const& section) { return start_packet(pid, part(section, 0, 183)); }
Bytes next(Bytes const& payload) { return exact_packet(pid, false, payload); }
Bytes tail(Bytes const& section, int from = 183) {
  return next(part(section, from, static_cast<int>(section.size())));
}
/// A start packet whose payload, with the pointer_field in front, is filled up with stuffing.
Bytes pointed(Bytes const& payload) { return make_packet({.pid = pid, .start = true, .payload = payload}); }

/// A packet that claims a payload behind an adaptation field that fills it, or more.
Bytes field_alone(bool start, int length) {
  Bytes packet = make_packet({.pid = pid, .start = start, .adaptation = 183});
  packet[4] = static_cast<unsigned char>(length);
  return packet;
}

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
    {"a tail of one byte", head(s184) + pointed(Bytes{1} + part(s184, 183, 184) + s20), {s184, s20}},
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
    {"adaptation fields without a payload between",
     head(s300) + field_alone(true, 183) + field_alone(false, 184) + field_alone(true, 255) + tail(s300),
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

Bytes const shortest = hex("42 00 00");

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

TEST_F(SectionStream, EveryPointerField) {
  for (int const control : {0, 1}) {
    for (int pointer = 0; pointer < 256; ++pointer) {
      host.forget();
      EXPECT_EQ(host.push(packet_with(control, true, pointer, shortest)), 0);
      EXPECT_EQ(host.sections.size(), pointer <= 180 ? 1u : 0u) << pointer;
      host.push(packet_with(control, false, 0, Bytes(184, 0)));  // ends a section that has begun
      EXPECT_EQ(host.sections.size(), pointer <= 182 ? 1u : 0u) << pointer;
      EXPECT_EQ(host.filtered.size(), host.sections.size()) << pointer;
    }
  }
}

TEST_F(SectionStream, EveryAdaptationFieldLength) {
  for (int const control : {2, 3}) {
    for (int length = 0; length < 256; ++length) {
      host.forget();
      EXPECT_EQ(host.push(packet_with(control, true, length, Bytes{0} + shortest)), 0);
      EXPECT_EQ(host.sections.size(), length <= 179 ? 1u : 0u) << length;
      std::string const hooks = "ts 256 @4;field @" + std::to_string(std::min(5 + length, 188)) + ';';
      EXPECT_EQ(host.calls.substr(0, hooks.size()), hooks);
      host.push(packet_with(control, false, length, Bytes(184, 0)));
    }
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

TEST_F(SectionStream, APayloadBeyondTheBufferEndsItsSection) {
  Demux::TSHeader const header(make_packet({.pid = pid}).data());
  Demux::PSIHandler handler(host, 0x42);
  for (std::size_t const size : {8192u, 8193u}) {
    host.forget();
    HeapBlock const payload(s20 + Bytes(size - 20, 0xFF));
    handler.parse(header, true, payload.data(), payload.size());
    EXPECT_EQ(host.sections.size(), size == 8192 ? 1u : 0u);
    EXPECT_FALSE(handler.in_section);
  }
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
