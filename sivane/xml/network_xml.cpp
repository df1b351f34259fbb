// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/network.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorNetworkName& d) { ar.attr(u"network_name", d.network_name); }
SIVANE_XML(DescriptorNetworkName)

static void fields(Archive& ar, DescriptorServiceList::ServiceList& r) {
  ar.attr(u"service_id", r.service_id);
  ar.attr(u"service_type", r.service_type);
}
SIVANE_XML_RECORD(DescriptorServiceList::ServiceList)

static void fields(Archive& ar, DescriptorServiceList& d) {
  ar.list(u"servicelist", u"service", d.servicelist);
}
SIVANE_XML(DescriptorServiceList)

static void fields(Archive& ar, DescriptorStuffing& d) { ar.attr(u"stuffing_byte", d.stuffing_byte); }
SIVANE_XML(DescriptorStuffing)

static void fields(Archive& ar, DescriptorSatelliteDeliverySystem& d) {
  ar.attr(u"frequency", d.frequency);
  ar.attr(u"orbital_position", d.orbital_position);
  ar.attr(u"west_east_flag", d.west_east_flag);
  ar.attr(u"polarization", d.polarization);
  ar.attr(u"modulation", d.modulation);
  ar.attr(u"symbol_rate", d.symbol_rate);
  ar.attr(u"FEC_inner", d.FEC_inner);
}
SIVANE_XML(DescriptorSatelliteDeliverySystem)

static void fields(Archive& ar, DescriptorCableDeliverySystem& d) {
  ar.attr(u"frequency", d.frequency);
  ar.attr(u"FEC_outer", d.FEC_outer);
  ar.attr(u"modulation", d.modulation);
  ar.attr(u"symbol_rate", d.symbol_rate);
  ar.attr(u"FEC_inner", d.FEC_inner);
}
SIVANE_XML(DescriptorCableDeliverySystem)

static void fields(Archive& ar, DescriptorTerrestrialDeliverySystem& d) {
  ar.attr(u"centre_frequency", d.centre_frequency);
  ar.attr(u"bandwidth", d.bandwidth);
  ar.attr(u"constellation", d.constellation);
  ar.attr(u"hierarchy_information", d.hierarchy_information);
  ar.attr(u"code_rate_HP_stream", d.code_rate_HP_stream);
  ar.attr(u"code_rate_LP_stream", d.code_rate_LP_stream);
  ar.attr(u"guard_interval", d.guard_interval);
  ar.attr(u"transmission_mode", d.transmission_mode);
  ar.attr(u"other_frequency_flag", d.other_frequency_flag);
}
SIVANE_XML(DescriptorTerrestrialDeliverySystem)

static void fields(Archive& ar, DescriptorFrequencyList& d) {
  ar.attr(u"coding_type", d.coding_type);
  ar.attr(u"centre_frequency", d.centre_frequency);
}
SIVANE_XML(DescriptorFrequencyList)

static void fields(Archive& ar, DescriptorMultilingualNetworkName& d) {
  ar.list(u"nameinfo", u"info", d.nameinfo);
}
SIVANE_XML(DescriptorMultilingualNetworkName)

}  // namespace sivane
