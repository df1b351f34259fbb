// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/service.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorBouquetName& d) { ar.attr(u"bouquet_name", d.bouquet_name); }
SIVANE_XML(DescriptorBouquetName)

static void fields(Archive& ar, DescriptorService& d) {
  ar.attr(u"service_type", d.service_type);
  ar.attr(u"provider_name", d.provider_name);
  ar.attr(u"service_name", d.service_name);
}
SIVANE_XML(DescriptorService)

// Documents do not carry the codes.
static void fields(Archive&, DescriptorCountryAvailability&) {}
SIVANE_XML(DescriptorCountryAvailability)

static void fields(Archive& ar, DescriptorLinkage& d) {
  ar.attr(u"transport_stream_id", d.transport_stream_id);
  ar.attr(u"original_network_id", d.original_network_id);
  ar.attr(u"service_id", d.service_id);
  ar.attr(u"linkage_type", d.linkage_type);
  ar.attr(u"private_data_byte", d.private_data_byte);
}
SIVANE_XML(DescriptorLinkage)

static void fields(Archive& ar, DescriptorNVODReference::service& r) {
  ar.attr(u"transport_stream_id", r.transport_stream_id);
  ar.attr(u"original_network_id", r.original_network_id);
  ar.attr(u"service_id", r.service_id);
}
SIVANE_XML_RECORD(DescriptorNVODReference::service)

static void fields(Archive& ar, DescriptorNVODReference& d) {
  ar.list(u"service_list", u"service", d.service_list);
}
SIVANE_XML(DescriptorNVODReference)

static void fields(Archive& ar, DescriptorTimeShiftedService& d) {
  ar.attr(u"reference_service_id", d.reference_service_id);
}
SIVANE_XML(DescriptorTimeShiftedService)

static void fields(Archive& ar, DescriptorCAIdentifier::CAIdentifierID& r) {
  ar.attr(u"CA_system_id", r.CA_system_id);
}
SIVANE_XML_RECORD(DescriptorCAIdentifier::CAIdentifierID)

static void fields(Archive& ar, DescriptorCAIdentifier& d) {
  ar.list(u"CA_system_id", u"id", d.CA_system_id);
}
SIVANE_XML(DescriptorCAIdentifier)

static void fields(Archive& ar, DescriptorTelephone& d) {
  ar.attr(u"foriegn_availability", d.foriegn_availability);
  ar.attr(u"connection_type", d.connection_type);
  ar.attr(u"country_prefix_length", d.country_prefix_length);
  ar.attr(u"international_area_code_length", d.international_area_code_length);
  ar.attr(u"operator_code_length", d.operator_code_length);
  ar.attr(u"national_area_code_length", d.national_area_code_length);
  ar.attr(u"core_number_length", d.core_number_length);
  ar.attr(u"country_prefix_char", d.country_prefix_char);
  ar.attr(u"international_area_code_char", d.international_area_code_char);
  ar.attr(u"operator_code_char", d.operator_code_char);
  ar.attr(u"national_area_code_char", d.national_area_code_char);
  ar.attr(u"core_number_char", d.core_number_char);
}
SIVANE_XML(DescriptorTelephone)

static void fields(Archive& ar, DescriptorMultilingualBouquetName& d) {
  ar.list(u"nameinfo", u"info", d.nameinfo);
}
SIVANE_XML(DescriptorMultilingualBouquetName)

static void fields(Archive& ar, DescriptorMultilingualServiceName::MultilingualServiceNameInfo& r) {
  ar.attr(u"provider_len", r.provider_len);
  ar.attr(u"providername", r.providername);
  ar.attr(u"service_len", r.service_len);
  ar.attr(u"servicename", r.servicename);
  ar.attr(u"ISO_639_language_code", r.ISO_639_language_code);
}
SIVANE_XML_RECORD(DescriptorMultilingualServiceName::MultilingualServiceNameInfo)

static void fields(Archive& ar, DescriptorMultilingualServiceName& d) {
  ar.list(u"servicenameinfo", u"info", d.servicenameinfo);
}
SIVANE_XML(DescriptorMultilingualServiceName)

static void fields(Archive& ar, DescriptorPrivateDataSpecifier& d) {
  ar.attr(u"private_data_specifier", d.private_data_specifier);
}
SIVANE_XML(DescriptorPrivateDataSpecifier)

static void fields(Archive& ar, DescriptorServiceMove& d) {
  ar.attr(u"new_original_network_id", d.new_original_network_id);
  ar.attr(u"new_transport_stream_id", d.new_transport_stream_id);
  ar.attr(u"new_service_id", d.new_service_id);
}
SIVANE_XML(DescriptorServiceMove)

static void fields(Archive& ar, DescriptorServiceAvailability& d) {
  ar.attr(u"availability_flag", d.availability_flag);
  ar.attr(u"cell_id", d.cell_id);
}
SIVANE_XML(DescriptorServiceAvailability)

// Without members the attributes are not even asked for.
bool DescriptorServiceIdentifier::_save_section(void*, void*) const { return true; }
void DescriptorServiceIdentifier::_parse(void*) {}

}  // namespace sivane
