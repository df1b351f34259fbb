// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The command check: a stream that violates nothing, streams that violate one measure each, and the network.
#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <ostream>

#include "loopback_sender.h"
#include "multiplex.h"
#include "plain_bytes.h"
#include "run_inspect.h"
#include "section_text.h"
#include "tool_process.h"

namespace sivane::testing {
namespace {

/// What was found, a line for each measure: its name, how often, and the packet of the first.
std::string found_in(std::string const& json) {
  rapidjson::Document document;
  document.Parse(json.c_str());
  if (!document.IsObject()) return "no JSON: " + json;
  std::string lines;
  for (auto const& measure : document["measures"].GetArray()) {
    if (measure["count"].GetInt() == 0) continue;
    lines += std::string(measure["name"].GetString()) + ' ' + std::to_string(measure["count"].GetInt()) +
             ' ' + std::to_string(measure["first"]["packet"].GetInt()) + '\n';
  }
  return lines;
}

void scramble(Bytes& packet) { packet[3] |= 0x80; }

struct Fault {
  char const* title;
  int milliseconds;  // of the stream
  void (*apply)(Multiplex&);
  char const* found;
};

void PrintTo(Fault const& fault, std::ostream* out) { *out << fault.title; }

using M = Multiplex;

constexpr Fault faults[] = {
    {"nothing", 40000, [](M&) {}, ""},
    {"junk", 8000, [](M& m) { m.insert(5000, Bytes(300, 0)); }, "TS_sync_loss 1 5000\n"},
    {"a sync byte", 8000, [](M& m) { m.edit(5001, 0x1FFF, [](Bytes& p) { p[0] = 0x46; }); },
     "Sync_byte_error 1 5001\n"},
    {"no PAT for long", 8000, [](M& m) { m.pause("pat", 5050, 5650); }, "PAT_error_2 1 5700\n"},
    {"no PAT at first", 8000, [](M& m) { m.pause("pat", 0, 650); }, "PAT_error_2 1 700\n"},
    {"no PAT at last", 8000, [](M& m) { m.pause("pat", 7450, 8000); }, "PAT_error_2 1 8000\n"},
    {"a foreign table in PID 0", 8000,
     [](M& m) { m.add(5060, 0, assemble("02 B( 0001 C1 00 00 E101 F( ) crc )")); }, "PAT_error_2 1 5060\n"},
    {"a scrambled PAT", 8000, [](M& m) { m.edit(5000, 0, scramble); }, "PAT_error_2 1 5000\n"},
    {"a lost packet", 8000,
     [](M& m) { m.edit(5000, M::audio_pid, [](Bytes& p) { p = make_packet({.pid = 0x1FFF}); }); },
     "Continuity_count_error 1 5220\n"},
    {"no PMT for long", 8000, [](M& m) { m.pause("pmt", 5050, 5650); }, "PMT_error_2 1 5705\n"},
    {"a scrambled PMT", 8000, [](M& m) { m.edit(5000, M::map_pid, scramble); }, "PMT_error_2 1 5005\n"},
    {"no packets of a PID", 12000, [](M& m) { m.pause("second audio", 3000, 9000); }, "PID_error 1 9022\n"},
    {"a transport error", 8000, [](M& m) { m.edit(5000, M::audio_pid, [](Bytes& p) { p[1] |= 0x80; }); },
     "Transport_error 1 5020\n"},
    {"a wrong CRC", 8000, [](M& m) { m.edit(5000, 0x11, [](Bytes& p) { p[20] ^= 1; }); },
     "CRC_error 1 5009\n"},
    {"a wrong CRC of a TOT", 8000, [](M& m) { m.edit(5500, 0x14, [](Bytes& p) { p[9] ^= 1; }); },
     "CRC_error 1 5515\n"},
    {"no PCR for long", 8000, [](M& m) { m.pause("pcr", 5000, 5150); }, "PCR_repetition_error 1 5177\n"},
    {"a jump of the clock", 8000, [](M& m) { m.jump(5000, 60000, false); },
     "PCR_discontinuity_indicator_error 1 5017\n"},
    {"a jump back", 8000, [](M& m) { m.jump(5000, -2000, false); },
     "PCR_discontinuity_indicator_error 1 5017\n"},
    {"an announced jump", 8000, [](M& m) { m.jump(5000, 60000, true); }, ""},
    {"no PTS for long", 8000, [](M& m) { m.pause("audio", 5000, 5800); }, "PTS_error 1 5820\n"},
    {"a foreign table in PID 1", 8000,
     [](M& m) { m.add(5060, 1, assemble("02 B( 0001 C1 00 00 E101 F( ) crc )")); }, "CAT_error 1 5060\n"},
    {"no CAT", 8000,
     [](M& m) {
       m.remove("cat");
       m.remove("emm");
       m.edit(5000, M::audio_pid, scramble);
     },
     "CAT_error 1 5020\n"},
    {"no NIT for long", 16000, [](M& m) { m.pause("nit", 2000, 12500); }, "NIT_actual_error 1 13007\n"},
    {"a foreign table in PID 0x10", 8000,
     [](M& m) { m.add(5060, 0x10, assemble("4A F( 0001 C1 00 00 F( ) F( ) crc )")); },
     "NIT_actual_error 1 5060\n"},
    {"NITs too close", 8000, [](M& m) { m.add(5030, 0x10, assemble("40 F( 0001 C1 00 00 F( ) F( ) crc )")); },
     "NIT_actual_error 1 5030\n"},
    {"no NIT other for long", 16000, [](M& m) { m.pause("nit other", 2000, 12500); },
     "NIT_other_error 1 13107\n"},
    {"no BAT for long", 16000, [](M& m) { m.pause("bat", 2000, 12500); }, "SI_repetition_error 1 13309\n"},
    {"no schedule for long", 16000, [](M& m) { m.pause("schedule 1", 2000, 12500); },
     "SI_repetition_error 1 12711\n"},
    {"a PID without a name", 8000,
     [](M& m) {
       m.repeat("stray", {0x300, 200, 5030, [](int) { return Bytes(); }});
     },
     "Unreferenced_PID 1 5030\n"},
    {"no SDT for long", 8000, [](M& m) { m.pause("sdt", 3000, 5400); }, "SDT_actual_error 1 5509\n"},
    {"no SDT other for long", 16000, [](M& m) { m.pause("sdt other", 2000, 12500); },
     "SDT_other_error 1 13209\n"},
    {"no EIT following for long", 8000, [](M& m) { m.pause("following", 3000, 5400); },
     "EIT_actual_error 1 5511\n"},
    {"no EIT other for long", 16000, [](M& m) { m.pause("other present", 2000, 12500); },
     "EIT_other_error 1 13111\n"},
    {"no EIT following at all", 6000, [](M& m) { m.remove("other following"); }, "EIT_PF_error 1 111\n"},
    {"a foreign table in PID 0x13", 8000, [](M& m) { m.add(5060, 0x13, assemble("70 7( EA60 180000 )")); },
     "RST_error 1 5060\n"},
    {"no TDT for long", 40000, [](M& m) { m.pause("tdt", 2000, 32500); }, "TDT_error 1 33015\n"},
    {"TDTs too close", 8000, [](M& m) { m.add(5032, 0x14, assemble("70 7( EA60 180000 )")); },
     "TDT_error 1 5032\n"},
    {"content without a version", 8000,
     [](M& m) {
       m.change("sdt other", 5000,
                assemble("46 F( 0002 CB 00 00 0001 FF 0001 FC 8( 48[ 01 01 41 01 44 ] ) crc )"));
     },
     "Changed_content 1 5209\n"},
    {"a version back", 8000,
     [](M& m) {
       m.change("sdt other", 5000,
                assemble("46 F( 0002 C9 00 00 0001 FF 0001 FC 8( 48[ 01 01 41 01 44 ] ) crc )"));
     },
     "Version_back 1 5209\n"},
    {"a version on", 8000,
     [](M& m) {
       m.change("sdt other", 5000,
                assemble("46 F( 0002 CD 00 00 0001 FF 0001 FC 8( 48[ 01 01 41 01 44 ] ) crc )"));
     },
     ""},
    {"a section missing", 8000,
     [](M& m) { m.repeat("bat", 0x11, 1000, 309, assemble("4A F( 0001 C1 00 01 F( ) F( ) crc )")); },
     "Missing_section 1 309\n"},
    {"a segment missing", 12000,
     [](M& m) {
       m.repeat("schedule 0", 0x12, 1000, 211, assemble("50 F( 0001 C1 00 10 0001 0001 00 50 crc )"));
       m.repeat("schedule 1", 0x12, 1000, 711, assemble("50 F( 0001 C1 10 10 0001 0001 10 50 crc )"));
     },
     "Missing_segment 1 211\n"},
    {"a table missing", 12000,
     [](M& m) {
       m.repeat("schedule 0", 0x12, 1000, 211, assemble("50 F( 0001 C1 00 00 0001 0001 00 52 crc )"));
       m.repeat("schedule 1", 0x12, 1000, 711, assemble("52 F( 0001 C1 00 00 0001 0001 00 52 crc )"));
     },
     "Missing_table 1 211\n"},
    {"a table that comes less often", 28000,
     [](M& m) {
       m.repeat("schedule 0", 0x12, 1000, 211, assemble("51 F( 0001 C1 00 00 0001 0001 00 52 crc )"));
       m.repeat("schedule 1", 0x12, 30000, 29711, assemble("52 F( 0001 C1 00 00 0001 0001 00 52 crc )"));
     },
     ""},
    {"a section that fails", 8000,
     [](M& m) { m.add(5060, 0x11, assemble("4A F( 0002 C1 00 00 F( ) FFFF crc )")); },
     "Failed_section 1 5060\n"},
    {"a descriptor that fails", 8000,
     [](M& m) {
       m.repeat("sdt other", 0x11, 1000, 209,
                assemble("46 F( 0002 CB 00 00 0001 FF 0001 FC 8( 48[ 01 20 41 ] ) crc )"));
     },
     "Failed_descriptor 1 209\n"},
    {"a PID that a program names", 4000,
     [](M& m) {
       m.repeat("pmt", M::map_pid, 100, 5,
                assemble("02 B( 0001 C1 00 00 E101 F( 09[ 0500 E104 ] ) 02 E101 F( ) 03 E102 F( ) "
                         "03 E103 F( ) 06 E400 F( ) crc )"));
     },
     "Missing_PID 1 4000\n"},
};

class CheckOf : public ::testing::TestWithParam<Fault> {};

}  // namespace

TEST_P(CheckOf, FindsTheFaultAndNothingElse) {
  Fault const& fault = GetParam();
  Multiplex multiplex;
  fault.apply(multiplex);
  Outcome const run = inspect("check --quiet --json @", multiplex.make(fault.milliseconds));
  EXPECT_EQ(found_in(run.out), fault.found) << fault.title << '\n' << run.out;
}

INSTANTIATE_TEST_SUITE_P(Faults, CheckOf, ::testing::ValuesIn(faults));

TEST(Check, LooksAtTheNetworkAsItComes) {
  constexpr int packets_of_datagram = 7, datagrams = 300;
  Multiplex multiplex;
  multiplex.pause("pat", 1050, 1650);
  Bytes const stream = multiplex.make(datagrams * packets_of_datagram);
  LoopbackSender sender;
  ToolProcess tool("check --json --quiet --packets 2100 udp://@" + sender.place());
  sender.wait_for_listener();
  auto const size = std::ssize(stream) / datagrams;
  for (int sent = 0; sent < datagrams; ++sent) {
    auto const begin = stream.begin() + sent * size;
    sender.send(Bytes(begin, begin + size));
    if (sent % 50 == 0) sender.wait_until_all_is_read();
  }
  EXPECT_EQ(tool.wait(), 1);
  EXPECT_EQ(found_in(tool.output()), "PAT_error_2 1 1700\n");
  EXPECT_NE(tool.output().find("\"arrival\":"), std::string::npos) << tool.output();
}

}  // namespace sivane::testing
