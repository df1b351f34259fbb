// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/service.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorBouquetName::_fields(FieldList& f) { f.text(FIELD(bouquet_name)); }

void DescriptorService::_fields(FieldList& f) {
  f.add(FIELD(service_type), 8);
  f.text(FIELD(provider_name));
  f.text(FIELD(service_name));
}

// Documents do not carry the codes.
void DescriptorCountryAvailability::_fields(FieldList& f) {
  f.add(UNSAVED(country_availability_flag), 1);
  f.add(UNSAVED(country_code));
}

void DescriptorLinkage::_fields(FieldList& f) {
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(service_id), 16);
  f.add(FIELD(linkage_type), 8);
  f.add(FIELD(private_data_byte));
}

RECORD_FIELDS(DescriptorNVODReference::service) {
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(service_id), 16);
}

void DescriptorNVODReference::_fields(FieldList& f) { f.list(FIELD(service_list), u"service"); }

void DescriptorTimeShiftedService::_fields(FieldList& f) { f.add(FIELD(reference_service_id), 16); }

RECORD_FIELDS(DescriptorCAIdentifier::CAIdentifierID) { f.add(FIELD(CA_system_id), 16); }

void DescriptorCAIdentifier::_fields(FieldList& f) { f.list(FIELD(CA_system_id), u"id"); }

void DescriptorTelephone::_fields(FieldList& f) {
  f.add(FIELD(foriegn_availability), 1);
  f.add(FIELD(connection_type), 5);
  f.add(FIELD(country_prefix_length), 2);
  f.add(FIELD(international_area_code_length), 3);
  f.add(FIELD(operator_code_length), 2);
  f.add(FIELD(national_area_code_length), 3);
  f.add(FIELD(core_number_length), 4);
  f.add(FIELD(country_prefix_char));
  f.add(FIELD(international_area_code_char));
  f.add(FIELD(operator_code_char));
  f.add(FIELD(national_area_code_char));
  f.add(FIELD(core_number_char));
}

void DescriptorMultilingualBouquetName::_fields(FieldList& f) { f.list(FIELD(nameinfo), u"info"); }

RECORD_FIELDS(DescriptorMultilingualServiceName::MultilingualServiceNameInfo) {
  f.add(FIELD(provider_len), 8);
  f.text(FIELD(providername));
  f.add(FIELD(service_len), 8);
  f.text(FIELD(servicename));
  f.add(FIELD(ISO_639_language_code));
}

void DescriptorMultilingualServiceName::_fields(FieldList& f) { f.list(FIELD(servicenameinfo), u"info"); }

void DescriptorPrivateDataSpecifier::_fields(FieldList& f) { f.add(FIELD(private_data_specifier), 32); }

void DescriptorServiceMove::_fields(FieldList& f) {
  f.add(FIELD(new_original_network_id), 16);
  f.add(FIELD(new_transport_stream_id), 16);
  f.add(FIELD(new_service_id), 16);
}

void DescriptorServiceAvailability::_fields(FieldList& f) {
  f.add(FIELD(availability_flag), 1);
  f.add(FIELD(cell_id), 16);
}

// Without members the attributes are not even asked for.
void DescriptorServiceIdentifier::_fields(FieldList&) {}

}  // namespace sivane
