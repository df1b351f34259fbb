// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"

namespace sivane::testing {
namespace {

TEST(Network, NetworkName) {
  const auto spell = [](auto const& d) { return members(d.network_name); };
  check<DescriptorNetworkName>("40 03 05 41 E9",
                               {"40 network_name_descriptor",
                                "network_name: \x05"
                                "A\xE9"},
                               spell, "'\\05A\\e9'", "''");
  check<DescriptorNetworkName>("40 00", {"40 network_name_descriptor", "network_name: "}, spell, "''");
}

TEST(Network, ServiceList) {
  const auto spell = [](auto const& d) {
    return each(d.servicelist, [](auto const& r) { return members(r.service_id, r.service_type); });
  };
  check<DescriptorServiceList>(
      "41 06 80 01 85 00 02 FF",
      {"41 service_list_descriptor", "service_id 8001", "service_type 85", "service_id 2", "service_type ff"},
      spell, "{8001 85}{2 ff}");
  check<DescriptorServiceList>("41 00", {"41 service_list_descriptor"}, spell, "");
}

TEST(Network, Stuffing) {
  const auto spell = [](auto const& d) { return members(d.stuffing_byte); };
  check<DescriptorStuffing>("42 02 FF 41", {"42 stuffing_descriptor", "stuffing_byte:", block("ff 41", ".A")},
                            spell, "<ff41>", "<>");
  check<DescriptorStuffing>("42 00", {"42 stuffing_descriptor"}, spell, "<>");
}

std::string spell_satellite(DescriptorSatelliteDeliverySystem const& d) {
  return members(d.frequency, d.orbital_position, d.west_east_flag, d.polarization, d.modulation,
                 d.symbol_rate, d.FEC_inner);
}

// The sums are written as they are defined, digit by digit: their last digit shows in stored documents.
TEST(Network, SatelliteDeliverySystem) {
  const double frequency =
      1 * 100.0 + 2 * 10.0 + 3 * 1.0 + 4 * 0.1 + 5 * 0.01 + 6 * 0.001 + 7 * 0.0001 + 8 * 0.00001;
  const double orbital_position = 9 * 100.0 + 0 * 10.0 + 1 * 1.0 + 2 * 0.1;
  const double symbol_rate = 9 * 100.0 + 8 * 10.0 + 7 * 1.0 + 6 * 0.1 + 5 * 0.01 + 4 * 0.001 + 3 * 0.0001;
  check<DescriptorSatelliteDeliverySystem>(
      "43 0B 12 34 56 78 90 12 DB 98 76 54 3F",
      {"43 satellite_delivery_system_descriptor", "frequency 0.00123457", "orbital_position 90.12",
       "west_east_flag 1", "polarization 2", "modulation 27", "symbol_rate 987.654", "FEC_inner 15"},
      spell_satellite, members(frequency, orbital_position, 1, 2, 0x1B, symbol_rate, 0xF));
  check<DescriptorSatelliteDeliverySystem>(
      "43 0B 01 17 58 50 01 92 24 02 75 00 0A",
      {"43 satellite_delivery_system_descriptor", "frequency 0.000117585", "orbital_position 1.92",
       "west_east_flag 0", "polarization 1", "modulation 4", "symbol_rate 27.5", "FEC_inner 10"},
      spell_satellite,
      members(10 + 1 + 7 * 0.1 + 5 * 0.01 + 8 * 0.001 + 5 * 0.0001, 10 + 9 + 2 * 0.1, 0, 1, 4,
              20 + 7 + 5 * 0.1, 10));
}

TEST(Network, BcdNibblesAboveNineCountWithTheirValue) {
  const auto d = in_section<DescriptorSatelliteDeliverySystem>("43 0B F0 00 00 0A 0B 0C 00 0D 00 00 E0", "");
  EXPECT_EQ(spell_satellite(d), members(1500 + 10 * 0.00001, 110 + 12 * 0.1, 0, 0, 0, 130 + 14 * 0.0001, 0));
}

TEST(Network, CableDeliverySystem) {
  const auto spell = [](auto const& d) {
    return members(d.frequency, d.FEC_outer, d.modulation, d.symbol_rate, d.FEC_inner);
  };
  const double frequency =
      1 * 1000.0 + 2 * 100.0 + 3 * 10.0 + 4 * 1.0 + 5 * 0.1 + 6 * 0.01 + 7 * 0.001 + 8 * 0.0001;
  const double symbol_rate = 9 * 100.0 + 8 * 10.0 + 7 * 1.0 + 6 * 0.1 + 5 * 0.01 + 4 * 0.001 + 3 * 0.0001;
  check<DescriptorCableDeliverySystem>(
      "44 0B 12 34 56 78 FF FA 85 98 76 54 3D",
      {"44 cable_delivery_system_descriptor", "frequency: 1234.57", "FEC_outer: a", "modulation: 85",
       "symbol_rate: 987.654", "FEC_inner: d"},
      spell, members(frequency, 0xA, 0x85, symbol_rate, 0xD));
}

TEST(Network, TerrestrialDeliverySystem) {
  const auto spell = [](auto const& d) {
    return members(d.centre_frequency, d.bandwidth, d.constellation, d.hierarchy_information,
                   d.code_rate_HP_stream, d.code_rate_LP_stream, d.guard_interval, d.transmission_mode,
                   d.other_frequency_flag);
  };
  const std::vector<std::string> lines = {"5a terrestrial_delivery_system_descriptor"};
  check<DescriptorTerrestrialDeliverySystem>("5A 0B 80 01 02 83 BF AA AD FF FF FF FF", lines, spell,
                                             "80010283 5 2 5 2 5 1 2 1");
  check<DescriptorTerrestrialDeliverySystem>("5A 0B 00 00 00 01 40 55 52 00 00 00 00", lines, spell,
                                             "1 2 1 2 5 2 2 1 0");
}

TEST(Network, FrequencyList) {
  const auto spell = [](auto const& d) { return members(d.coding_type, d.centre_frequency); };
  check<DescriptorFrequencyList>("62 09 FE 80 01 02 83 00 00 00 01", {"62 frequency_list_descriptor"}, spell,
                                 "2 [80010283 1]", "2 []");
  check<DescriptorFrequencyList>("62 01 01", {"62 frequency_list_descriptor"}, spell, "1 []");
}

TEST(Network, MultilingualNetworkName) {
  const auto spell = [](auto const& d) {
    return each(d.nameinfo,
                [](auto const& r) { return members(r.ISO_639_language_code, r.text_len, r.name); });
  };
  check<DescriptorMultilingualNetworkName>(
      "5B 0B 65 6E 67 02 05 41 64 65 75 01 FF",
      {"5b multilingual_network_name_descriptor", "MultilingualNameInfo::ISO_639_language_code: eng",
       "MultilingualNameInfo::text_len: 2",
       "MultilingualNameInfo::name: \x05"
       "A",
       "MultilingualNameInfo::ISO_639_language_code: deu", "MultilingualNameInfo::text_len: 1",
       "MultilingualNameInfo::name: \xFF"},
      spell, "{'eng' 2 '\\05A'}{'deu' 1 '\\ff'}", "");
  check<DescriptorMultilingualNetworkName>("5B 00", {"5b multilingual_network_name_descriptor"}, spell, "");
}

}  // namespace
}  // namespace sivane::testing
