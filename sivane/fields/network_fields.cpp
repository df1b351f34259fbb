// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/network.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorNetworkName::_fields(FieldList& f) { f.text(FIELD(network_name)); }

RECORD_FIELDS(DescriptorServiceList::ServiceList) {
  f.add(FIELD(service_id), 16);
  f.add(FIELD(service_type), 8);
}

void DescriptorServiceList::_fields(FieldList& f) { f.list(FIELD(servicelist), u"service"); }

void DescriptorStuffing::_fields(FieldList& f) { f.add(FIELD(stuffing_byte)); }

void DescriptorSatelliteDeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(frequency));
  f.add(FIELD(orbital_position));
  f.add(FIELD(west_east_flag), 1);
  f.add(FIELD(polarization), 2);
  f.add(FIELD(modulation), 5);
  f.add(FIELD(symbol_rate));
  f.add(FIELD(FEC_inner), 4);
}

void DescriptorCableDeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(frequency));
  f.add(FIELD(FEC_outer), 4);
  f.add(FIELD(modulation), 8);
  f.add(FIELD(symbol_rate));
  f.add(FIELD(FEC_inner), 4);
}

void DescriptorTerrestrialDeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(centre_frequency), 32);
  f.add(FIELD(bandwidth), 3);
  f.add(FIELD(constellation), 2);
  f.add(FIELD(hierarchy_information), 3);
  f.add(FIELD(code_rate_HP_stream), 3);
  f.add(FIELD(code_rate_LP_stream), 3);
  f.add(FIELD(guard_interval), 2);
  f.add(FIELD(transmission_mode), 2);
  f.add(FIELD(other_frequency_flag), 1);
}

void DescriptorFrequencyList::_fields(FieldList& f) {
  f.add(FIELD(coding_type), 2);
  f.add(FIELD(centre_frequency), 32);
}

void DescriptorMultilingualNetworkName::_fields(FieldList& f) { f.list(FIELD(nameinfo), u"info"); }

}  // namespace sivane
