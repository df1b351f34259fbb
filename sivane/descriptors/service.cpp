// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/service.h>
#include <sivane/descriptors/value_text.h>
#include <sivane/foundation/dump_lines.h>

#include <ostream>

namespace sivane {

using dump::line;

// bouquet_name_descriptor

DescriptorBouquetName::DescriptorBouquetName(DescriptorBytes d)
    : DescriptorBase(d), bouquet_name(d.body().rest_as_string()) {}

void DescriptorBouquetName::_dump_state(std::ostream& os) const { line(os, "bouquet_name: ", bouquet_name); }

// service_descriptor

DescriptorService::DescriptorService(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  service_type = r.u8();
  provider_name = r.prefixed_string();
  service_name = r.prefixed_string();
}

char const* DescriptorService::get_service_type_text(int type) {
  static constexpr char const* texts[] = {
      "reserved for future use",
      "digital television service",
      "digital radio sound service",
      "teletext service",
      "NVOD reference service",
      "NVOD time-shifted service",
      "mosiac service",
      "PAL coded signal",
      "SECAM coded signal",
      "D/D2-MAC",
      "FM Radio",
      "NTSC coded signal",
  };
  if (type > 255) return "<unknown>";
  if (type >= 128 && type <= 254) return "user defined";
  return value_text(texts, type, "reserved for future use");
}

void DescriptorService::_dump_state(std::ostream& os) const {
  line(os, "service_type ", service_type);
  line(os, "provider_name ", provider_name);
  line(os, "service_name ", service_name);
}

// country_availability_descriptor

DescriptorCountryAvailability::DescriptorCountryAvailability(DescriptorBytes d) : DescriptorBase(d) {
  constexpr Failure failure{error::length_error, "country_availability_descriptor"};
  Reader r = d.body(failure);
  country_availability_flag = r.bits(1);
  r.skip_bits(7);
  r.need_whole(3, failure);
  while (r.more()) country_code.push_back(r.string(3));
}

void DescriptorCountryAvailability::_dump_state(std::ostream& os) const {
  line(os, "country_availability_flag: ", country_availability_flag);
  for (std::string const& code : country_code) line(os, "country_code: ", code);
}

// linkage_descriptor

DescriptorLinkage::DescriptorLinkage(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  transport_stream_id = r.u16();
  original_network_id = r.u16();
  service_id = r.u16();
  linkage_type = r.u8();
  private_data_byte = r.rest();
}

void DescriptorLinkage::_dump_state(std::ostream& os) const {
  line(os, "transport_stream_id: ", transport_stream_id);
  line(os, "original_network_id: ", original_network_id);
  line(os, "service_id: ", service_id);
  line(os, "linkage_type: ", linkage_type);
  dump::block_if_any(os, "private_data_byte:", private_data_byte);
}

// NVOD_reference_descriptor

DescriptorNVODReference::DescriptorNVODReference(DescriptorBytes d) : DescriptorBase(d) {
  service_list = d.body().records<service>(6, {error::length_error, "NVOD_reference_descriptor"});
}

DescriptorNVODReference::service::service(Reader& r) {
  transport_stream_id = r.u16();
  original_network_id = r.u16();
  service_id = r.u16();
}

void DescriptorNVODReference::service::_dump_state(std::ostream& os) const {
  line(os, "DescriptorNVODReference::service::transport_stream_id: ", transport_stream_id);
  line(os, "DescriptorNVODReference::service::original_network_id: ", original_network_id);
  line(os, "DescriptorNVODReference::service::service_id: ", service_id);
}

void DescriptorNVODReference::_dump_state(std::ostream& os) const {
  for (service const& copy : service_list) copy._dump_state(os);
}

// time_shifted_service_descriptor

DescriptorTimeShiftedService::DescriptorTimeShiftedService(DescriptorBytes d) : DescriptorBase(d) {
  reference_service_id = d.body().u16();
}

void DescriptorTimeShiftedService::_dump_state(std::ostream& os) const {
  line(os, "reference_service_id: ", reference_service_id);
}

// CA_identifier_descriptor

DescriptorCAIdentifier::DescriptorCAIdentifier(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  while (r.left() >= 2) CA_system_id.emplace_back(r);
}

void DescriptorCAIdentifier::CAIdentifierID::dump_state(std::ostream& os) const {
  line(os, "CA_system_id: ", CA_system_id);
}

void DescriptorCAIdentifier::_dump_state(std::ostream& os) const {
  os << "CA_system_id: ";  // and again with the first record
  dump::each(os, CA_system_id);
}

// telephone_descriptor

DescriptorTelephone::DescriptorTelephone(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.skip_bits(2);
  foriegn_availability = r.bits(1);
  connection_type = r.bits(5);
  r.skip_bits(1);
  country_prefix_length = r.bits(2);
  international_area_code_length = r.bits(3);
  operator_code_length = r.bits(2);
  r.skip_bits(1);
  national_area_code_length = r.bits(3);
  core_number_length = r.bits(4);
  country_prefix_char = r.string(country_prefix_length);
  international_area_code_char = r.string(international_area_code_length);
  operator_code_char = r.string(operator_code_length);
  national_area_code_char = r.string(national_area_code_length);
  core_number_char = r.string(core_number_length);
}

void DescriptorTelephone::_dump_state(std::ostream& os) const {
  line(os, "foriegn_availability: ", foriegn_availability);
  line(os, "connection_type: ", connection_type);
  line(os, "country_prefix_length: ", country_prefix_length);
  line(os, "international_area_code_length: ", international_area_code_length);
  line(os, "operator_code_length: ", operator_code_length);
  line(os, "national_area_code_length: ", national_area_code_length);
  line(os, "core_number_length: ", core_number_length);
  line(os, "country_prefix_char: ", country_prefix_char);
  line(os, "international_area_code_char: ", international_area_code_char);
  line(os, "operator_code_char: ", operator_code_char);
  line(os, "national_area_code_char: ", national_area_code_char);
  line(os, "core_number_char: ", core_number_char);
}

void DescriptorTelephone::_reset() {
  country_prefix_char.clear();
  international_area_code_char.clear();
  operator_code_char.clear();
  national_area_code_char.clear();
  core_number_char.clear();
}

// multilingual_bouquet_name_descriptor

DescriptorMultilingualBouquetName::DescriptorMultilingualBouquetName(DescriptorBytes d) : DescriptorBase(d) {
  nameinfo = d.body({error::syntax_error}).walk<MultilingualNameInfo>();
}

void DescriptorMultilingualBouquetName::_dump_state(std::ostream& os) const {
  for (MultilingualNameInfo const& name : nameinfo) name._dump_state(os);
}

// multilingual_service_name_descriptor

DescriptorMultilingualServiceName::DescriptorMultilingualServiceName(DescriptorBytes d) : DescriptorBase(d) {
  servicenameinfo = d.body({error::syntax_error}).walk<MultilingualServiceNameInfo>();
}

DescriptorMultilingualServiceName::MultilingualServiceNameInfo::MultilingualServiceNameInfo(
    unsigned char const* p, int size, int& consumed)
    : MultilingualServiceNameInfo(
          read_record<MultilingualServiceNameInfo>(Reader::within(p, size), consumed)) {}

DescriptorMultilingualServiceName::MultilingualServiceNameInfo::MultilingualServiceNameInfo(Reader& r) {
  constexpr int service_len_size = 1;
  r.need(5, {error::length_error, "multilingual_service_name_info_descriptor"});
  r.code(ISO_639_language_code);
  provider_len = r.u8();
  r.need(provider_len + service_len_size,
         {error::length_error, "multilingual_service_name_info_descriptor:2"});
  providername = r.string(provider_len);
  service_len = r.u8();
  r.need(service_len, {error::length_error, "multilingual_service_name_info_descriptor:3"});
  servicename = r.string(service_len);
}

void DescriptorMultilingualServiceName::MultilingualServiceNameInfo::_dump_state(std::ostream& os) const {
  line(os, "DescriptorMultilingualServiceName::MultilingualServiceNameInfo::ISO_639_language_code: ",
       ISO_639_language_code);
  line(os, "DescriptorMultilingualServiceName::MultilingualServiceNameInfo::provider_len: ", provider_len);
  line(os, "DescriptorMultilingualServiceName::MultilingualServiceNameInfo::providername: ", providername);
  line(os, "DescriptorMultilingualServiceName::MultilingualServiceNameInfo::service_len: ", service_len);
  line(os, "DescriptorMultilingualServiceName::MultilingualServiceNameInfo::servicename: ", servicename);
}

void DescriptorMultilingualServiceName::_dump_state(std::ostream& os) const {
  for (MultilingualServiceNameInfo const& names : servicenameinfo) names._dump_state(os);
}

// private_data_specifier_descriptor

DescriptorPrivateDataSpecifier::DescriptorPrivateDataSpecifier(DescriptorBytes d) : DescriptorBase(d) {
  private_data_specifier = d.body().u32();
}

void DescriptorPrivateDataSpecifier::_dump_state(std::ostream& os) const {
  line(os, "private_data_specifier: ", private_data_specifier);
}

// service_move_descriptor

DescriptorServiceMove::DescriptorServiceMove(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  new_original_network_id = r.u16();
  new_transport_stream_id = r.u16();
  new_service_id = r.u16();
}

void DescriptorServiceMove::_dump_state(std::ostream& os) const {
  line(os, "new_original_network_id: ", new_original_network_id);
  line(os, "new_transport_stream_id: ", new_transport_stream_id);
  line(os, "new_service_id: ", new_service_id);
}

// service_identifier_descriptor

DescriptorServiceIdentifier::DescriptorServiceIdentifier(DescriptorBytes d) : DescriptorBase(d) {}

// service_availability_descriptor

DescriptorServiceAvailability::DescriptorServiceAvailability(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body({error::item_length_error});
  availability_flag = r.bits(1);
  r.skip_bits(7);
  cell_id = r.numbers<int>(16, {error::item_length_error});
}

}  // namespace sivane
