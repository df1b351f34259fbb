// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>

#include <string>
#include <vector>

#include "eit_text.h"

namespace sivane::testing {
namespace {

using catalogue::Catalogue;
using Numbers = std::vector<int>;

std::string const sdt = R"(42 F( 0002 C1 00 00 0001 FF
    0007 FD 9( 48[ 01 ["P"] ["N"] ] 53[ 0500 ] 5D[ "deu" ["p"] ["n"] ] ) 0008 FC 0() crc ))";

TEST(Catalogue, DescribesServices) {
  Catalogue catalogue;
  EXPECT_EQ(add(catalogue, sdt).size(), 2u);
  catalogue::Service const& service = *catalogue.find(service_7);
  EXPECT_EQ(service.name + service.provider + service.names[0].name + service.names[0].provider, "NPnp");
  EXPECT_EQ(service.type, 1);
  EXPECT_EQ(service.running_status, 4);
  EXPECT_TRUE(service.is_scrambled && service.has_present_following && service.is_actual);
  EXPECT_FALSE(service.has_schedule);
  EXPECT_EQ(catalogue.services().at({1, 2, 8}).type, -1);
  // The other table of the same stream still names one of those that go.
  add(catalogue, "46 F( 0002 C1 00 00 0001 FF 0008 FC 8() crc )");
  add(catalogue, "42 F( 0002 C3 00 00 0001 FF crc )");
  EXPECT_EQ(catalogue.services().size(), 1u);
  EXPECT_EQ(catalogue.services().begin()->first.service, 8);
}

TEST(Catalogue, KnowsProgramsInAnyOrder) {
  Catalogue catalogue;
  std::string const pmt = R"(02 B( 0007 C1 00 00 E100 F( 09[ 0500 E1F5 ] )
      1B E101 F() 06 E102 F( 52[ 31 ] 6A[ 00 ] 0A[ "fra" 00 "de1" 00 "fra" 00 ] 09[ 0100 E1F6 ] 7F[ 06 87 "eng" ] ) 06 E103 F( 59[ "eng" 10 0001 0002 ] ) crc ))";
  add(catalogue, pmt, 0x30);
  add(catalogue, sdt);
  add(catalogue, "00 B( 0002 C1 00 00 0000 E010 0007 E030 0009 E031 crc )", 0);
  catalogue::Program const& program = *catalogue.find(catalogue::ProgramKey{7});
  EXPECT_EQ(program.map_pid, 0x30);
  EXPECT_EQ(program.pcr_pid, 0x100);
  using Kind = catalogue::ElementaryStream::Kind;
  EXPECT_EQ(program.streams.at(0).kind(), Kind::video);
  EXPECT_EQ(program.streams.at(1).kind(), Kind::audio);
  EXPECT_EQ(program.streams.at(1).component_tag, 0x31);
  EXPECT_EQ(program.streams.at(1).languages, (std::vector<std::string>{"de?", "fra"}));
  EXPECT_STREQ(program.streams.at(1).supplementary.value().purpose(), "audio description");
  EXPECT_EQ(program.streams.at(1).supplementary->language, "eng");
  EXPECT_FALSE(program.streams.at(2).supplementary);
  EXPECT_EQ(program.streams.at(2).kind(), Kind::subtitles);
  EXPECT_EQ(catalogue.ca_systems(service_7), (Numbers{0x100, 0x500}));
  EXPECT_FALSE(catalogue.find(catalogue::ProgramKey{9})->is_mapped);
  EXPECT_EQ(catalogue.programs().size(), 2u);
  // A program that comes back is read again.
  add(catalogue, "00 B( 0002 C3 00 00 0009 E031 crc )", 0);
  EXPECT_EQ(catalogue.programs().size(), 1u);
  EXPECT_FALSE(add(catalogue, pmt, 0x30).empty());
}

TEST(Catalogue, PassesOverTablesOnPidsThatAreNotTheirs) {
  Catalogue catalogue;
  EXPECT_TRUE(add(catalogue, "00 B( 0002 C1 00 00 0007 E030 crc )", 0x40).empty());
  EXPECT_TRUE(add(catalogue, "01 B( FFFF C1 00 00 09[ 0500 E1F5 ] crc )", 0x40).empty());
  add(catalogue, "00 B( 0002 C1 00 00 0007 E030 crc )", 0);
  EXPECT_TRUE(add(catalogue, "02 B( 0007 C1 00 00 E100 F() crc )", 0x31).empty());
  EXPECT_EQ(add(catalogue, "01 B( FFFF C1 00 00 09[ 0500 E1F5 ] crc )", 1).size(), 1u);
  EXPECT_EQ(catalogue.access().at(0).pid, 0x1F5);
}

/// A NIT of network 3 with stream 2 of network 1 and its descriptors.
std::string nit(std::string const& table_id, std::string const& descriptors) {
  return table_id + " F( 0003 C1 00 00 F( 40[ \"Net\" ] ) F( 0002 0001 F( " + descriptors + " ) ) crc )";
}

TEST(Catalogue, KnowsWhereStreamsAreSent) {
  Catalogue catalogue;
  EXPECT_EQ(add(catalogue, nit("40",
                               "43[ 01172750 0192 A1 02750003 ] 44[ 03460000 FFF0 02 00690000 ] "
                               "5A[ 02625A00 1F 00 00 FFFFFFFF ] 41[ 0007 01 ]"))
                .size(),
            2u);
  EXPECT_EQ(catalogue.networks().at({3}).name, "Net");
  catalogue::TransportStream const& stream = catalogue.network_streams().at({3, {1, 2}});
  ASSERT_EQ(stream.deliveries.size(), 3u);
  EXPECT_DOUBLE_EQ(*stream.deliveries[0].frequency, 11.7275e9);
  EXPECT_DOUBLE_EQ(stream.deliveries[0].symbol_rate, 27.5e6);
  EXPECT_DOUBLE_EQ(stream.deliveries[0].orbital_position, 19.2);
  EXPECT_TRUE(stream.deliveries[0].is_east);
  EXPECT_DOUBLE_EQ(*stream.deliveries[1].frequency, 346e6);
  EXPECT_DOUBLE_EQ(*stream.deliveries[2].frequency, 400e6);
  EXPECT_DOUBLE_EQ(stream.deliveries[2].bandwidth, 8e6);
  EXPECT_EQ(stream.services.at(0).type, 1);
}

TEST(Catalogue, KnowsTheSecondGenerationOfDelivery) {
  Catalogue catalogue;
  add(catalogue,
      nit("40", "7F[ 04 05 0001 0166 0009 03041840 00 ] 79[ C0 000007 03 ] 7F[ 0D 06 01 149E7A80 00 ]"));
  auto const& deliveries = catalogue.network_streams().at({3, {1, 2}}).deliveries;
  ASSERT_EQ(deliveries.size(), 3u);
  EXPECT_EQ(deliveries[0].plp, 5);
  EXPECT_EQ(deliveries[0].t2_system, 1);
  EXPECT_DOUBLE_EQ(deliveries[0].bandwidth, 8e6);
  EXPECT_EQ(deliveries[0].guard_interval, 3);
  EXPECT_EQ(deliveries[0].transmission_mode, 1);
  EXPECT_DOUBLE_EQ(*deliveries[0].frequency, 506e6);
  EXPECT_EQ(deliveries[1].scrambling_sequence, 7);
  EXPECT_EQ(deliveries[1].input_stream, 3);
  EXPECT_EQ(deliveries[2].plp, 6);
  EXPECT_EQ(deliveries[2].data_slice, 1);
  EXPECT_DOUBLE_EQ(*deliveries[2].frequency, 0x149E7A80);
}

TEST(Catalogue, NumbersChannelsByTheSpecifierInForce) {
  auto const number = [](std::string const& descriptors) {
    Catalogue catalogue;
    add(catalogue, nit("41", "5F[ 00000028 ] 83[ 0007 FC09 ]"));
    add(catalogue, nit("40", descriptors));
    auto const found = catalogue.channel_number(service_7);
    return found ? (found->is_visible ? found->number : -found->number) : 0;
  };
  EXPECT_EQ(number("5F[ 00000028 ] 83[ 0006 FC01 0007 FFFF ]"), 0x3FF);
  EXPECT_EQ(number("5F[ 00000028 ] 83[ 0007 7C02 ]"), -2);
  EXPECT_EQ(number("5F[ 00000029 ] 83[ 0007 FC02 ]"), 0x3C02);
  EXPECT_EQ(number("5F[ 0000002A ] 83[ 0007 FC02 ]"), 0);
  EXPECT_EQ(number("83[ 0007 FC02 ]"), 0);
  EXPECT_EQ(number("5F[ 00000028 ] 88[ 0007 FC20 ]"), 0x20);
  EXPECT_EQ(number("5F[ 00000028 ] 88[ 0007 FC20 ] 83[ 0007 FC02 ]"), 2);
  EXPECT_EQ(number("5F[ 0000002A ] 83[ 0007 FC02 ] 5F[ 00000028 ] 83[ 0007 FC04 ]"), 4);
  EXPECT_EQ(number("5F[ 00000029 ] 87[ 01 [\"L\"] \"NOR\" [ 0007 FC05 ] ]"), 5);
}

TEST(Catalogue, NumbersChannelsAsTheNetworksThatAreLeftDo) {
  Catalogue catalogue;
  auto const numbers = [&](std::string const& head, std::string const& number) {
    add(catalogue, head + " 00 00 F() F( 0002 0001 F( 5F[ 00000028 ] 83[ 0007 " + number + " ] ) ) crc )");
    return catalogue.channel_number(service_7)->number;
  };
  EXPECT_EQ(numbers("41 F( 0004 C1", "FC04"), 4);
  EXPECT_EQ(numbers("40 F( 0005 C1", "FC05"), 5);
  EXPECT_EQ(numbers("41 F( 0003 C1", "FC03"), 5);
  EXPECT_FALSE(catalogue.channel_number({1, 3, 7}));
  EXPECT_EQ(numbers("40 F( 0005 C3", "FC06"), 6);
  add(catalogue, "40 F( 0005 C5 00 00 F() F() crc )");
  EXPECT_EQ(catalogue.channel_number(service_7)->number, 3);
  add(catalogue, "41 F( 0003 C3 00 00 F() F() crc )");
  EXPECT_EQ(catalogue.channel_number(service_7)->number, 4);
  add(catalogue, "41 F( 0004 C3 00 00 F() F() crc )");
  EXPECT_FALSE(catalogue.channel_number(service_7));
}

TEST(Catalogue, TellsTheNamesAndStreamsOfBouquets) {
  Catalogue catalogue;
  add(catalogue,
      "4A F( 0003 C1 00 00 F( 47[ \"Bouquet\" ] 09[ 0500 E000 ] ) F( 0002 0001 F( 09[ 0100 E000 ] ) ) crc )");
  EXPECT_EQ(catalogue.bouquets().at({3}).name, "Bouquet");
  EXPECT_EQ(catalogue.bouquets().at({3}).ca_systems, Numbers{0x500});
  EXPECT_EQ(catalogue.bouquet_streams().at({3, {1, 2}}).ca_systems, Numbers{0x100});
  add(catalogue, "4A F( 0003 C3 00 00 F() F( 0002 0004 F() ) crc )");
  EXPECT_EQ(catalogue.bouquet_streams().size(), 1u);
  EXPECT_TRUE(catalogue.bouquets().at({3}).ca_systems.empty());
}

TEST(Catalogue, LosesNothingToBrokenSections) {
  Catalogue catalogue;
  add(catalogue, eit_text({}, titled(1, "a")));
  Bytes section = assemble(eit_text({.version = 1}, titled(2, "b")));
  section[20] ^= 1;
  EXPECT_THROW(catalogue.add(0x12, section.data(), section.size()), error);
  for (std::size_t size = 0; size < section.size(); ++size) {
    EXPECT_TRUE(catalogue
                    .add(0x12,
                         HeapBlock(Bytes(section.begin(), section.begin() + static_cast<int>(size))).data(),
                         size)
                    .empty());
  }
  add(catalogue, eit_text({.table_id = 0x51}, event_text(3, "4D[ \"eng\" [\"c\"] [] ] 54[ 00 ]")));
  EXPECT_EQ(catalogue.problems(), 1u);
  EXPECT_EQ(catalogue.events().size(), 2u);
}

}  // namespace
}  // namespace sivane::testing
