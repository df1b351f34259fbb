// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The mode that loses nothing, and what is counted on the way.
#include <gtest/gtest.h>

#include "random_stream.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
Bytes const s20 = patterned_section(0x42, 20), s200 = patterned_section(0x42, 200),
            s8 = patterned_section(0x46, 8), s300 = patterned_section(0x42, 300),
            unwanted = patterned_section(0x4A, 300);

struct EveryHost : PushHost {
  EveryHost() {
    set_reassembly(Reassembly::every_section);
    for (int const id : {0x42, 0x46}) add_psi_handler(pid, id);
  }
};

TEST(EverySection, AgreesWithASecondReadingOfFaultyStreams) {
  for (unsigned int seed = 1; seed <= 60; ++seed) {
    Bytes const stream = RandomStream(pid, seed).take(400);
    SecondReading second;
    EveryHost host, filters;
    filters.reset();
    filters.add_filter(pid, 7);
    for (int at = 0; at < static_cast<int>(stream.size()); at += 188) {
      Bytes const packet = part(stream, at, at + 188);
      second.packet(packet);
      host.push(packet);
    }
    filters.push(stream);
    Sections wanted;
    Filtered filtered;
    for (Bytes const& section : second.sections) {
      filtered.emplace_back(7, section);
      if (section[0] == 0x42 || section[0] == 0x46) wanted.push_back(section);
    }
    ASSERT_GT(wanted.size(), 60u);
    EXPECT_EQ(host.sections, wanted) << seed;
    EXPECT_EQ(filters.filtered, filtered) << seed;
    EXPECT_EQ(filters.counters(pid)->sections, filtered.size());
  }
}

/// Packets in a row, with the continuity_counter that follows.
struct Sequence {
  Bytes stream;
  int counter = 0;
  Sequence& add(bool start, Bytes const& payload) {
    Bytes packet = exact_packet(pid, start, payload);
    packet[3] = static_cast<unsigned char>(packet[3] | (counter++ & 0xF));
    stream = std::move(stream) + packet;
    return *this;
  }
};

/// A packet in which `s200` ends, three sections lie, and `s300` begins.
Bytes const full = Sequence()
                       .add(true, Bytes{0} + part(s200, 0, 150))
                       .add(true, Bytes{50} + part(s200, 150, 200) + s20 + s8 + s20 + part(s300, 0, 2))
                       .add(false, part(s300, 2, 150))
                       .add(false, part(s300, 150, 300))
                       .stream;
Sections const in_full{s200, s20, s8, s20, s300};

TEST(EverySection, AThrowingHookLosesItsOwnSectionAlone) {
  for (std::string const hook : {"ts", "field", "filter", "section"}) {
    for (std::size_t section = 0; section < in_full.size(); ++section) {
      EveryHost host;
      host.add_filter(pid, 7);
      host.on_call = [&](std::string const& call) {
        if (call.rfind(hook, 0) == 0 && host.sections.size() >= section) throw section;
      };
      EXPECT_THROW(host.push(full), std::size_t) << hook << section;
      EXPECT_EQ(host.sections, in_full) << hook;
      EXPECT_EQ(host.filtered.size(), in_full.size()) << hook;
    }
  }
}

TEST(EverySection, AHookMayChangeEverythingInTheMiddleOfAPacket) {
  struct Case {
    char const* name;
    std::function<void(EveryHost&)> action;
    Sections expected;
  };
  for (Case const& c :
       {Case{"reset", [](EveryHost& host) { host.reset(); }, {s200, s20}},
        {"remove 0x42", [](EveryHost& host) { host.remove_psi_handler(pid, 0x42); }, {s200, s20, s8}},
        {"another table", [](EveryHost& host) { host.add_psi_handler(pid, 0x4A); }, in_full},
        {"the other mode",
         [](EveryHost& host) { host.set_reassembly(Reassembly::first_start); },
         {s200, s20}},
        {"lost sync", [](EveryHost& host) { host.of_pid(pid).invalidate(); }, in_full},
        {"afresh",
         [](EveryHost& host) {
           host.reset();
           host.add_psi_handler(pid, 0x42);
         },
         {s200, s20}}}) {
    EveryHost host;
    host.on_call = [&](std::string const& call) {
      if (call.rfind("section", 0) == 0 && host.sections.size() == 2) c.action(host);
    };
    host.push(full);
    EXPECT_EQ(host.sections, c.expected) << c.name;
  }
}

TEST(EverySection, WhatAHookAddsTakesPartInSectionsThatBeginInLaterPackets) {
  EveryHost host;
  host.remove_psi_handler(pid, 0x46);
  host.on_call = [&](std::string const& call) {
    if (call.rfind("section", 0) != 0) return;
    host.add_psi_handler(pid, 0x46);
    if (host.of_pid(pid).filter_handlers.empty()) host.add_filter(pid, 7);
  };
  host.push(full);
  EXPECT_EQ(host.sections, (Sections{s200, s20, s20, s300}));
  EXPECT_TRUE(host.filtered.empty());
  host.push(full);
  EXPECT_EQ(host.sections.size(), 4u + in_full.size());
  EXPECT_EQ(host.filtered.size(), in_full.size());
}

struct Gaps : GapListener {
  std::string text;
  void on_gap(Gap const& gap) override {
    text += std::to_string(gap.missing) + '@' + std::to_string(gap.offset) + ';';
  }
};

TEST(Counters, TellWhatWasReceived) {
  Sequence s;
  s.add(true, Bytes{0} + s20 + part(s300, 0, 100)).add(false, part(s300, 100, 284));
  s.counter += 2;  // two are lost, and with them the end of the section
  s.add(true, Bytes{16} + Bytes(16) + s8 + s20 + Bytes(139, 0xFF));
  Bytes const last = part(s.stream, 376, 564);
  s.stream = s.stream + last;  // repeated
  Bytes scrambled = make_packet({.pid = pid, .continuity = 5}), erroneous = make_packet({.pid = pid});
  scrambled[3] |= 0xC0;
  erroneous[1] |= 0x80;
  Bytes clock = make_packet({.pid = pid, .adaptation = 183});
  clock[3] = 0x25;  // no payload: the counter stands still
  clock[5] = 0x10;
  clock[10] = 0x80 | 0x7E;
  clock[11] = 7;
  s.stream = s.stream + scrambled + erroneous + clock;
  for (bool const is_asked : {false, true}) {
    EveryHost host;
    Gaps gaps;
    host.set_gap_listener(&gaps);
    host.add_filter(pid, 7);  // wants all that looks like a section
    if (is_asked) host.count(pid + 1);
    host.push(s.stream);
    host.report_crc_failure(pid);
    PidCounters const& c = *host.counters(pid);
    EXPECT_EQ(std::tie(c.packets, c.gaps, c.missing, c.repeated, c.erroneous, c.scrambled),
              std::make_tuple(7u, 1u, 2u, 1u, 1u, 1u));
    EXPECT_EQ(std::tie(c.sections, c.cut_sections, c.crc_failures, c.pcrs), std::make_tuple(3u, 1u, 1u, 1u));
    EXPECT_EQ(std::tie(c.first_pcr, c.last_pcr, c.last_pcr_offset),
              std::make_tuple(300u + 7, 300u + 7, 6u * 188));
    EXPECT_EQ(gaps.text, "2@376;");
    EXPECT_EQ(host.counters(pid + 1) != nullptr, is_asked);
  }
}

TEST(Offsets, AreThoseOfThePacketInWhichASectionBegan) {
  for (Reassembly const mode : {Reassembly::first_start, Reassembly::every_section}) {
    PushHost host;
    host.set_reassembly(mode);
    host.add_psi_handler(pid, 0x42);
    host.add_filter(pid, 7);
    std::vector<std::uint64_t> offsets;
    host.on_call = [&](std::string const& call) {
      if (call[0] == 's' || call == "filter") offsets.push_back(host.section_offset());
    };
    host.push(Sequence().add(true, Bytes{0} + part(s200, 0, 150)).add(false, part(s200, 150, 200)).stream);
    EXPECT_EQ(host.packet_offset(), 188u);
    Bytes const packet = start_packet(pid, s20);
    host.push_packets({packet.data(), 1, 188, 10000});
    EXPECT_EQ(offsets, (std::vector<std::uint64_t>{0, 0, 10000, 10000}));
  }
}

}  // namespace
}  // namespace sivane::testing
