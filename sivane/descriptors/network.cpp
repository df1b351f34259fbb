// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/network.h>
#include <sivane/descriptors/value_text.h>
#include <sivane/foundation/dump_lines.h>

#include <ios>
#include <ostream>

namespace sivane {

using dump::line;

// network_name_descriptor

DescriptorNetworkName::DescriptorNetworkName(DescriptorBytes d)
    : DescriptorBase(d), network_name(d.body().rest_as_string()) {}

void DescriptorNetworkName::_dump_state(std::ostream& os) const { line(os, "network_name: ", network_name); }

// service_list_descriptor

DescriptorServiceList::DescriptorServiceList(DescriptorBytes d) : DescriptorBase(d) {
  servicelist = d.body().records<ServiceList>(3, {error::no_errorcode, "descriptor length mismatch"});
}

DescriptorServiceList::ServiceList::ServiceList(Reader& r) {
  service_id = r.u16();
  service_type = r.u8();
}

void DescriptorServiceList::ServiceList::dump_state(std::ostream& os) const {
  line(os, "service_id ", service_id);
  line(os, "service_type ", service_type);
}

void DescriptorServiceList::_dump_state(std::ostream& os) const { dump::each(os, servicelist); }

// stuffing_descriptor

DescriptorStuffing::DescriptorStuffing(DescriptorBytes d)
    : DescriptorBase(d), stuffing_byte(d.body().rest()) {}

void DescriptorStuffing::_dump_state(std::ostream& os) const {
  dump::block_if_any(os, "stuffing_byte:", stuffing_byte);
}

// satellite_delivery_system_descriptor

DescriptorSatelliteDeliverySystem::DescriptorSatelliteDeliverySystem(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  frequency = r.bcd({100, 10, 1, 0.1, 0.01, 0.001, 0.0001, 0.00001});
  orbital_position = r.bcd({100, 10, 1, 0.1});
  west_east_flag = r.bits(1);
  polarization = r.bits(2);
  modulation = r.bits(5);
  symbol_rate = r.bcd({100, 10, 1, 0.1, 0.01, 0.001, 0.0001});
  FEC_inner = r.bits(4);
}

char const* DescriptorSatelliteDeliverySystem::get_polarization_text() const {
  static constexpr char const* texts[] = {"linear - horizontal", "linear - vertical", "circular - horizontal",
                                          "circular - vertical"};
  return value_text(texts, polarization, "<unknown>");
}

char const* DescriptorSatelliteDeliverySystem::get_modulation_text() const {
  static constexpr char const* texts[] = {"not defined", "QPSK"};
  return value_text(texts, modulation, "reserved");
}

char const* DescriptorSatelliteDeliverySystem::get_FEC_inner_text(int fec) {
  static constexpr char const* texts[] = {"not defined", "1/2", "2/3",   "3/4",
                                          "5/6",         "7/8", nullptr, "no conv. coding"};
  return value_text(texts, fec, "reserved");
}

void DescriptorSatelliteDeliverySystem::_dump_state(std::ostream& os) const {
  line(os << std::dec, "frequency ", frequency * 0.00001);
  line(os << std::dec, "orbital_position ", orbital_position * 0.1);
  line(os, "west_east_flag ", west_east_flag);
  line(os, "polarization ", polarization);
  line(os, "modulation ", modulation);
  line(os, "symbol_rate ", symbol_rate);
  line(os, "FEC_inner ", FEC_inner);
}

// cable_delivery_system_descriptor

DescriptorCableDeliverySystem::DescriptorCableDeliverySystem(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  frequency = r.bcd({1000, 100, 10, 1, 0.1, 0.01, 0.001, 0.0001});
  r.skip_bits(12);
  FEC_outer = r.bits(4);
  modulation = r.u8();
  symbol_rate = r.bcd({100, 10, 1, 0.1, 0.01, 0.001, 0.0001});
  FEC_inner = r.bits(4);
}

void DescriptorCableDeliverySystem::_dump_state(std::ostream& os) const {
  line(os, "frequency: ", frequency);
  line(os, "FEC_outer: ", FEC_outer);
  line(os, "modulation: ", modulation);
  line(os, "symbol_rate: ", symbol_rate);
  line(os, "FEC_inner: ", FEC_inner);
}

// terrestrial_delivery_system_descriptor

DescriptorTerrestrialDeliverySystem::DescriptorTerrestrialDeliverySystem(DescriptorBytes d)
    : DescriptorBase(d) {
  Reader r = d.body();
  centre_frequency = r.u32();
  bandwidth = r.bits(3);
  r.skip_bits(5);
  constellation = r.bits(2);
  hierarchy_information = r.bits(3);
  code_rate_HP_stream = r.bits(3);
  code_rate_LP_stream = r.bits(3);
  guard_interval = r.bits(2);
  transmission_mode = r.bits(2);
  other_frequency_flag = r.bits(1);
}

// frequency_list_descriptor

DescriptorFrequencyList::DescriptorFrequencyList(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body({error::item_length_error});
  r.skip_bits(6);
  coding_type = r.bits(2);
  centre_frequency = r.numbers<unsigned long>(32, {error::item_length_error});
}

char const* DescriptorFrequencyList::get_coding_type_text() const {
  static constexpr char const* texts[] = {"satellite", "cable", "terrestrial"};
  return value_text(texts, coding_type, "undefined", 1);
}

// multilingual_network_name_descriptor

DescriptorMultilingualNetworkName::DescriptorMultilingualNetworkName(DescriptorBytes d) : DescriptorBase(d) {
  nameinfo = d.body({error::syntax_error}).walk<MultilingualNameInfo>();
}

void DescriptorMultilingualNetworkName::_dump_state(std::ostream& os) const {
  for (MultilingualNameInfo const& name : nameinfo) name._dump_state(os);
}

}  // namespace sivane
