// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/application.h>
#include <sivane/fields/field_list.h>

namespace sivane {

RECORD_FIELDS(DescriptorAitApplication::ApplicationProfile) {
  f.add(FIELD(application_profile), 16);
  f.add(FIELD(version_major), 8);
  f.add(FIELD(version_minor), 8);
  f.add(FIELD(version_micro), 8);
}

void DescriptorAitApplication::_fields(FieldList& f) {
  f.add(FIELD(application_profiles_length), 8);
  f.add(FIELD(service_bound_flag), 1);
  f.add(FIELD(visibility), 2);
  f.add(FIELD(application_priority), 8);
  f.add(FIELD_AS("transport_protocol_label", transport_protocol_labels));
  f.list(FIELD(application_profiles), u"profile");
}

RECORD_FIELDS(DescriptorAitApplicationName::ApplicationNameInfo) {
  f.add(FIELD(application_name_length), 8);
  f.add(FIELD(application_name));
  f.add(FIELD(ISO_639_language_code));
}

void DescriptorAitApplicationName::_fields(FieldList& f) { f.list(FIELD(application_name_infos), u"info"); }

void DescriptorAitApplicationIcons::_fields(FieldList& f) {
  f.add(FIELD(icon_locator_length), 8);
  f.add(FIELD(icon_locator));
  f.add(FIELD(icon_flags), 16);
  f.add(FIELD(reserved_future_use));
}

RECORD_FIELDS(DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo) {
  f.add(FIELD(application_priority), 8);
  f.child(FIELD(application_identifer));
}

void DescriptorAitExternalApplicationAuthorisation::_fields(FieldList& f) {
  f.list(FIELD(external_application_authorisation_infos), u"info");
}

RECORD_FIELDS(DescriptorAitTransportProtocol::TransportOC) {
  f.add(FIELD(remote_connection), 1);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(service_id), 16);
  f.add(FIELD(component_tag), 8);
}

RECORD_FIELDS(DescriptorAitTransportProtocol::TransportIP) {
  f.add(FIELD(remote_connection), 1);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(service_id), 16);
  f.add(FIELD(alignment_indicator), 1);
}

void DescriptorAitTransportProtocol::_fields(FieldList& f) {
  f.add(FIELD(protocol_id), 16);
  f.add(FIELD(transport_protocol_label), 8);
  f.child(FIELD(transport_OC));
  f.child(FIELD(transport_IP));
}

RECORD_FIELDS(DescriptorAitRoutingIPv4::RoutingIPv4Info) {
  f.add(FIELD(component_tag), 8);
  f.add(FIELD(address), 32);
  f.add(FIELD(port_number), 16);
  f.add(FIELD(address_mask), 32);
}

void DescriptorAitRoutingIPv4::_fields(FieldList& f) { f.list(FIELD(routing_ipv4_infos), u"info"); }

RECORD_FIELDS(DescriptorAitRoutingIPv6::RoutingIPv6Info) {
  f.add(FIELD(component_tag), 8);
  f.add(FIELD(address));
  f.add(FIELD(port_number), 16);
  f.add(FIELD(address_mask));
}

void DescriptorAitRoutingIPv6::_fields(FieldList& f) { f.list(FIELD(routing_ipv6_infos), u"info"); }

RECORD_FIELDS(DescriptorAitDIILocation::DIILocationInfo) {
  f.add(FIELD(DII_identification), 15);
  f.add(FIELD_AS("associatoin_tag", association_tag), 16);
}

void DescriptorAitDIILocation::_fields(FieldList& f) {
  f.add(FIELD(transport_protocol_label), 8);
  f.list(FIELD(dii_location_infos), u"info");
}

RECORD_FIELDS(DescriptorAitPreFetch::PreFetchInfo) {
  f.add(FIELD(label_length), 8);
  f.add(FIELD(label));
  f.add(FIELD(prefetch_priority), 8);
}

void DescriptorAitPreFetch::_fields(FieldList& f) {
  f.add(FIELD(transport_protocol_label), 8);
  f.list(FIELD(prefetch_info), u"info");
}

void DescriptorDVB_J_Application::_fields(FieldList& f) { f.list(FIELD(parameter_infos), u"info"); }

void DescriptorDVB_J_ApplicationLocation::_fields(FieldList& f) {
  f.add(FIELD(initial_class));
  f.child(FIELD(base_directory));
  f.child(FIELD(classpath_extension));
}

void DescriptorDVB_HTML_Application::_fields(FieldList& f) {
  f.add(FIELD(parameter));
  f.child(FIELD(application_id));
}

void DescriptorDVB_HTML_ApplicationLocation::_fields(FieldList& f) {
  f.add(FIELD(initial_path));
  f.child(FIELD(physical_root));
}

void DescriptorDVB_HTML_ApplicationLocationBoundary::_fields(FieldList& f) {
  f.add(FIELD(regular_expression));
  f.child(FIELD(label));
}

}  // namespace sivane
