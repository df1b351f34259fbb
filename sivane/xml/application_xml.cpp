// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/application.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorAitApplication::ApplicationProfile& r) {
  ar.attr(u"application_profile", r.application_profile);
  ar.attr(u"version_major", r.version_major);
  ar.attr(u"version_minor", r.version_minor);
  ar.attr(u"version_micro", r.version_micro);
}
SIVANE_XML_RECORD(DescriptorAitApplication::ApplicationProfile)

static void fields(Archive& ar, DescriptorAitApplication& d) {
  ar.attr(u"application_profiles_length", d.application_profiles_length);
  ar.attr(u"service_bound_flag", d.service_bound_flag);
  ar.attr(u"visibility", d.visibility);
  ar.attr(u"application_priority", d.application_priority);
  ar.attr(u"transport_protocol_label", d.transport_protocol_labels);
  ar.list(u"application_profiles", u"profile", d.application_profiles);
}
SIVANE_XML(DescriptorAitApplication)

static void fields(Archive& ar, DescriptorAitApplicationName::ApplicationNameInfo& r) {
  ar.attr(u"application_name_length", r.application_name_length);
  ar.attr(u"application_name", r.application_name);
  ar.attr(u"ISO_639_language_code", r.ISO_639_language_code);
}
SIVANE_XML_RECORD(DescriptorAitApplicationName::ApplicationNameInfo)

static void fields(Archive& ar, DescriptorAitApplicationName& d) {
  ar.list(u"application_name_infos", u"info", d.application_name_infos);
}
SIVANE_XML(DescriptorAitApplicationName)

static void fields(Archive& ar, DescriptorAitApplicationIcons& d) {
  ar.attr(u"icon_locator_length", d.icon_locator_length);
  ar.attr(u"icon_locator", d.icon_locator);
  ar.attr(u"icon_flags", d.icon_flags);
  ar.attr(u"reserved_future_use", d.reserved_future_use);
}
SIVANE_XML(DescriptorAitApplicationIcons)

static void fields(
    Archive& ar, DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo& r) {
  ar.attr(u"application_priority", r.application_priority);
  ar.child(u"application_identifer", r.application_identifer);
}
SIVANE_XML_RECORD(DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo)

static void fields(Archive& ar, DescriptorAitExternalApplicationAuthorisation& d) {
  ar.list(u"external_application_authorisation_infos", u"info", d.external_application_authorisation_infos);
}
SIVANE_XML(DescriptorAitExternalApplicationAuthorisation)

static void fields(Archive& ar, DescriptorAitTransportProtocol::TransportOC& r) {
  ar.attr(u"remote_connection", r.remote_connection);
  ar.attr(u"original_network_id", r.original_network_id);
  ar.attr(u"transport_stream_id", r.transport_stream_id);
  ar.attr(u"service_id", r.service_id);
  ar.attr(u"component_tag", r.component_tag);
}
SIVANE_XML_RECORD(DescriptorAitTransportProtocol::TransportOC)

static void fields(Archive& ar, DescriptorAitTransportProtocol::TransportIP& r) {
  ar.attr(u"remote_connection", r.remote_connection);
  ar.attr(u"original_network_id", r.original_network_id);
  ar.attr(u"transport_stream_id", r.transport_stream_id);
  ar.attr(u"service_id", r.service_id);
  ar.attr(u"alignment_indicator", r.alignment_indicator);
}
SIVANE_XML_RECORD(DescriptorAitTransportProtocol::TransportIP)

static void fields(Archive& ar, DescriptorAitTransportProtocol& d) {
  ar.attr(u"protocol_id", d.protocol_id);
  ar.attr(u"transport_protocol_label", d.transport_protocol_label);
  ar.child(u"transport_OC", d.transport_OC);
  ar.child(u"transport_IP", d.transport_IP);
}
SIVANE_XML(DescriptorAitTransportProtocol)

static void fields(Archive& ar, DescriptorAitRoutingIPv4::RoutingIPv4Info& r) {
  ar.attr(u"component_tag", r.component_tag);
  ar.attr(u"address", r.address);
  ar.attr(u"port_number", r.port_number);
  ar.attr(u"address_mask", r.address_mask);
}
SIVANE_XML_RECORD(DescriptorAitRoutingIPv4::RoutingIPv4Info)

static void fields(Archive& ar, DescriptorAitRoutingIPv4& d) {
  ar.list(u"routing_ipv4_infos", u"info", d.routing_ipv4_infos);
}
SIVANE_XML(DescriptorAitRoutingIPv4)

static void fields(Archive& ar, DescriptorAitRoutingIPv6::RoutingIPv6Info& r) {
  ar.attr(u"component_tag", r.component_tag);
  ar.attr(u"address", r.address);
  ar.attr(u"port_number", r.port_number);
  ar.attr(u"address_mask", r.address_mask);
}
SIVANE_XML_RECORD(DescriptorAitRoutingIPv6::RoutingIPv6Info)

static void fields(Archive& ar, DescriptorAitRoutingIPv6& d) {
  ar.list(u"routing_ipv6_infos", u"info", d.routing_ipv6_infos);
}
SIVANE_XML(DescriptorAitRoutingIPv6)

static void fields(Archive& ar, DescriptorAitDIILocation::DIILocationInfo& r) {
  ar.attr(u"DII_identification", r.DII_identification);
  ar.attr(u"associatoin_tag", r.association_tag);
}
SIVANE_XML_RECORD(DescriptorAitDIILocation::DIILocationInfo)

static void fields(Archive& ar, DescriptorAitDIILocation& d) {
  ar.attr(u"transport_protocol_label", d.transport_protocol_label);
  ar.list(u"dii_location_infos", u"info", d.dii_location_infos);
}
SIVANE_XML(DescriptorAitDIILocation)

static void fields(Archive& ar, DescriptorAitPreFetch::PreFetchInfo& r) {
  ar.attr(u"label_length", r.label_length);
  ar.attr(u"label", r.label);
  ar.attr(u"prefetch_priority", r.prefetch_priority);
}
SIVANE_XML_RECORD(DescriptorAitPreFetch::PreFetchInfo)

static void fields(Archive& ar, DescriptorAitPreFetch& d) {
  ar.attr(u"transport_protocol_label", d.transport_protocol_label);
  ar.list(u"prefetch_info", u"info", d.prefetch_info);
}
SIVANE_XML(DescriptorAitPreFetch)

static void fields(Archive& ar, DescriptorDVB_J_Application& d) {
  ar.list(u"parameter_infos", u"info", d.parameter_infos);
}
SIVANE_XML(DescriptorDVB_J_Application)

static void fields(Archive& ar, DescriptorDVB_J_ApplicationLocation& d) {
  ar.attr(u"initial_class", d.initial_class);
  ar.child(u"base_directory", d.base_directory);
  ar.child(u"classpath_extension", d.classpath_extension);
}
SIVANE_XML(DescriptorDVB_J_ApplicationLocation)

static void fields(Archive& ar, DescriptorDVB_HTML_Application& d) {
  ar.attr(u"parameter", d.parameter);
  ar.child(u"application_id", d.application_id);
}
SIVANE_XML(DescriptorDVB_HTML_Application)

static void fields(Archive& ar, DescriptorDVB_HTML_ApplicationLocation& d) {
  ar.attr(u"initial_path", d.initial_path);
  ar.child(u"physical_root", d.physical_root);
}
SIVANE_XML(DescriptorDVB_HTML_ApplicationLocation)

static void fields(Archive& ar, DescriptorDVB_HTML_ApplicationLocationBoundary& d) {
  ar.attr(u"regular_expression", d.regular_expression);
  ar.child(u"label", d.label);
}
SIVANE_XML(DescriptorDVB_HTML_ApplicationLocationBoundary)

}  // namespace sivane
