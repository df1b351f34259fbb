// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What tables offer beside parsing, and what their dumps do to a stream.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <iomanip>
#include <memory>
#include <sstream>

#include "expect_error.h"
#include "heap_block.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

template <class Table>
Table parsed(std::string const& section) {
  Table table;
  table.Parse(HeapBlock(assemble(section)).data());
  return table;
}

template <class Object>
std::string dumped(Object const& object, std::ios::fmtflags base = std::ios::dec) {
  std::ostringstream os;
  os.setf(base, std::ios::basefield);
  object.dump_state(os);
  return os.str();
}

TEST(TableClasses, HeadersByOtherNames) {
  auto const type_text = [](int type) {
    Ait ait;
    ait.context_id = type;
    EXPECT_EQ(ait.get_application_type(), type);
    return std::string(ait.get_application_type_text());
  };
  EXPECT_EQ(text_runs(0, 0x8001, type_text),
            "0 reserved_future_use\n1 DVB-J application\n2 DVB-HTML application\n"
            "else subject to registration with DVB\n");
  EXPECT_EQ(parsed<DsmCC>("3B B( 8001 C1 00 00 crc )").get_table_extension(), 0x8001);
  Bat const bat = parsed<Bat>("4A B( 0001 C1 00 00 F() F( 0001 0002 F() 0003 0004 F() ) crc )");
  EXPECT_EQ(&bat.get_stream_infos(), &bat.stream_infos);
}

TEST(Entries, DumpInTheStreamsFill) {
  int size = 99;
  HeapBlock const stream(assemble("0B E100 F( 52[ 0F ] )"));
  PmtStreamInfo const info(reinterpret_cast<_PMT_INFO*>(stream.data()), size);
  EXPECT_EQ(info.es_info_length, 3);
  EXPECT_EQ(dumped(info),
            "stream_type:  b\nelementary_PID:  100\n"
            "descriptor_tag: 52 stream_identifier_descriptor\ncomponent_tag: f\n");
  HeapBlock const event(assemble("00AB C079124500 014530 9( 4F[ 0001 0002 ] 15[ 0102030405 ] )"));
  EXPECT_EQ(dumped(Eit::EventInfo(event.data(), size)),
            "event_id:   ab\nrunning_status: 4\nfree_CA_mode: 1\ndescriptors_length: d\n"
            "start_time: 13/10-1993 12:45:0\nduration: 1:45:30\n");
}

TEST(ShortTables, DumpInTheStreamsBaseUntilATimeTurnsItToDecimal) {
  EXPECT_EQ(dumped(parsed<Tot>("73 7( C079124500 F() DEADBEEF )"), std::ios::hex),
            "table_id: 73\nsection_length: b\nUTC_time: 13/10-1993 12:45:0\ncrc32: 3735928559\n");
}

constexpr char const* protected_program =
    "02 B( 1234 C1 00 00 E1FF F( 09[ 0500 E001 ] 15[] 0A[ \"engA\" ] ) 02 E100 F( 09[ 0500 E002 ]"
    " 09[ 0500 E003 ] 15[] 56[] ) 03 E101 F() 04 E102 F( 09[ 0500 E004 ] ) crc )";

TEST(Pmt, CollectsCaDescriptorsBehindWhatIsThere) {
  std::vector<DescriptorCa> found(1);
  parsed<Pmt>(protected_program).get_all_ca_descriptors(found);
  std::vector<int> pids;
  for (DescriptorCa const& descriptor : found) pids.push_back(descriptor.pid);
  EXPECT_EQ(pids, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(Pmt, PrintsTheHostsDescriptorsUntilReset) {
  Pmt pmt = parsed<Pmt>(protected_program);
  pmt.descriptors.push_back(std::make_shared<DescriptorGeneral const>(0x3E, nullptr, 0));
  pmt.stream_infos[0].descriptors.push_back(std::make_shared<DescriptorGeneral const>(0x3F, nullptr, 0));
  Pmt const copy = pmt;
  pmt.reset();
  EXPECT_TRUE(pmt.descriptors.empty());
  std::string const dump = dumped(copy);
  EXPECT_NE(dump.find("15 Reserved\ndata:\ndescriptor_tag: 3E Reserved\ndata:\ndescriptor_tag: 0A "),
            dump.npos);
  EXPECT_NE(dump.find("15 Reserved\ndata:\ndescriptor_tag: 3F Reserved\ndata:\ndescriptor_tag: 56 "),
            dump.npos);
}

TEST(Pmt, PutsBackFlagsAndWidthAndNotTheFill) {
  Pmt const pmt = parsed<Pmt>(protected_program);
  std::ostringstream os;
  os << std::left << std::dec << std::setfill('*') << std::setw(5);
  auto const flags = os.flags();
  pmt._dump_state(os);
  EXPECT_EQ(os.flags(), flags);
  EXPECT_EQ(os.width(), 5);
  EXPECT_EQ(os.fill(), '0');
  EXPECT_TRUE(os.str().starts_with("program_number: 1234\nversion_number: 00\n")) << os.str();
}

}  // namespace
}  // namespace sivane::testing
