// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/application.h>
#include <sivane/foundation/dump_lines.h>

#include <algorithm>

namespace sivane {

namespace {

/// A record of a fixed size at a bare pointer.
template <class Record>
Record record_at(unsigned char const* p) {
  int consumed = 0;
  return read_record<Record>(Reader::trusting(p), consumed);
}

}  // namespace

// application_descriptor

DescriptorAitApplication::DescriptorAitApplication(DescriptorBytes d) : DescriptorAitBase(d) {
  constexpr Failure mismatch{error::length_error,
                             "application_descriptor: application_profiles_length length mismatch"};
  Reader r = d.body();
  application_profiles_length = r.u8();
  if (application_profiles_length % 5 != 0) r.fail(mismatch, -1);
  application_profiles = r.sub(application_profiles_length).records<ApplicationProfile>(5, mismatch);
  service_bound_flag = r.bits(1);
  visibility = r.bits(2);
  r.skip_bits(5);
  application_priority = r.u8();
  transport_protocol_labels = r.rest();
}

DescriptorAitApplication::ApplicationProfile::ApplicationProfile(unsigned char const* p)
    : ApplicationProfile(record_at<ApplicationProfile>(p)) {}

DescriptorAitApplication::ApplicationProfile::ApplicationProfile(Reader& r) {
  application_profile = r.u16();
  version_major = r.u8();
  version_minor = r.u8();
  version_micro = r.u8();
}

void DescriptorAitApplication::_dump_state(std::ostream& os) const {
  dump::line(os, "application_profiles_length: ", application_profiles_length);
  for (ApplicationProfile const& profile : application_profiles) {
    dump::line(os, "application_profile: ", profile.application_profile);
    dump::line(os, "version_major: ", profile.version_major);
    dump::line(os, "version_minor: ", profile.version_minor);
    dump::line(os, "version_micro: ", profile.version_micro);
  }
  dump::line(os, "service_bound_flag: ", service_bound_flag);
  dump::line(os, "visibility: ", visibility);
  dump::line(os, "application_priority: ", application_priority);
  for (unsigned char const label : transport_protocol_labels) {
    dump::line(os, "transport_protocol_label: ", label);
  }
}

void DescriptorAitApplication::_reset() {
  application_profiles.clear();
  transport_protocol_labels.clear();
}

// application_name_descriptor

DescriptorAitApplicationName::DescriptorAitApplicationName(DescriptorBytes d) : DescriptorAitBase(d) {
  application_name_infos =
      d.body({error::length_error, "application_name_descriptor: 1"}).walk<ApplicationNameInfo>();
}

DescriptorAitApplicationName::ApplicationNameInfo::ApplicationNameInfo(unsigned char const* p,
                                                                       int /*available*/, int& consumed)
    : ApplicationNameInfo(read_record<ApplicationNameInfo>(Reader::trusting(p), consumed)) {}

DescriptorAitApplicationName::ApplicationNameInfo::ApplicationNameInfo(Reader& r) {
  r.code(ISO_639_language_code);
  application_name_length = r.u8();
  application_name = r.string(application_name_length);
}

void DescriptorAitApplicationName::_dump_state(std::ostream& os) const {
  for (ApplicationNameInfo const& info : application_name_infos) {
    dump::line(os, "ISO_639_language_code: ", info.ISO_639_language_code);
    dump::line(os, "application_name_length: ", info.application_name_length);
    dump::line(os, "application_name: ", info.application_name);
  }
}

// application_icons_descriptor

DescriptorAitApplicationIcons::DescriptorAitApplicationIcons(DescriptorBytes d) : DescriptorAitBase(d) {
  Reader r = d.body();
  icon_locator_length = r.u8();
  icon_locator = r.string(icon_locator_length);
  icon_flags = r.u16();
  reserved_future_use = r.rest();
}

void DescriptorAitApplicationIcons::_dump_state(std::ostream& os) const {
  dump::line(os, "icon_locator_length: ", icon_locator_length);
  dump::line(os, "icon_locator: ", icon_locator);
  dump::line(os, "icon_flags: ", icon_flags);
  dump::block(os, "reserved_future_use:", reserved_future_use);
}

void DescriptorAitApplicationIcons::_reset() {
  icon_locator.clear();
  reserved_future_use.clear();
}

// external_application_authorisation_descriptor

DescriptorAitExternalApplicationAuthorisation::DescriptorAitExternalApplicationAuthorisation(
    DescriptorBytes d)
    : DescriptorAitBase(d) {
  constexpr Failure mismatch{error::length_error, "external_application_authorisation_descriptor: 1"};
  external_application_authorisation_infos =
      d.body(mismatch).records<AitExternalApplicationAuthorisationInfo>(7, mismatch);
}

DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo::
    AitExternalApplicationAuthorisationInfo(unsigned char const* p)
    : AitExternalApplicationAuthorisationInfo(record_at<AitExternalApplicationAuthorisationInfo>(p)) {}

DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo::
    AitExternalApplicationAuthorisationInfo(Reader& r)
    : application_identifer(r), application_priority(r.u8()) {}

void DescriptorAitExternalApplicationAuthorisation::_dump_state(std::ostream& os) const {
  for (auto const& info : external_application_authorisation_infos) {
    info.application_identifer.dump_state(os);
    dump::line(os, "application_priority: ", info.application_priority);
  }
}

// transport_protocol_descriptor

namespace {

/// What the selectors of both transports begin with.
template <class Selector>
void read_connection(Selector& selector, Reader& r) {
  selector.remote_connection = r.bits(1);
  r.skip_bits(7);
  if (selector.remote_connection == 0) return;
  selector.original_network_id = r.u16();
  selector.transport_stream_id = r.u16();
  selector.service_id = r.u16();
}

template <class Selector>
void dump_connection(Selector const& selector, std::ostream& os) {
  dump::line(os, "remote_connection: ", selector.remote_connection);
  if (selector.remote_connection != 1) return;
  dump::line(os, "original_network_id: ", selector.original_network_id);
  dump::line(os, "transport_stream_id: ", selector.transport_stream_id);
  dump::line(os, "service_id: ", selector.service_id);
}

enum Protocol : int { object_carousel = 1, ip = 2 };

}  // namespace

DescriptorAitTransportProtocol::DescriptorAitTransportProtocol(DescriptorBytes d) : DescriptorAitBase(d) {
  Reader r = d.body();
  protocol_id = r.u16();
  transport_protocol_label = r.u8();
  if (protocol_id == object_carousel) transport_OC = TransportOC(r);
  if (protocol_id == ip) transport_IP = TransportIP(r);
}

DescriptorAitTransportProtocol::TransportOC::TransportOC(unsigned char const* p, int& consumed)
    : TransportOC(read_record<TransportOC>(Reader::trusting(p), consumed)) {}

DescriptorAitTransportProtocol::TransportOC::TransportOC(Reader& r) {
  read_connection(*this, r);
  component_tag = r.u8();
}

void DescriptorAitTransportProtocol::TransportOC::_dump_state(std::ostream& os) const {
  dump_connection(*this, os);
  dump::line(os, "component_tag: ", component_tag);
}

DescriptorAitTransportProtocol::TransportIP::TransportIP(unsigned char const* p, int& consumed)
    : TransportIP(read_record<TransportIP>(Reader::trusting(p), consumed)) {}

DescriptorAitTransportProtocol::TransportIP::TransportIP(Reader& r) {
  read_connection(*this, r);
  alignment_indicator = r.bits(1);
  r.skip_bits(7);
}

void DescriptorAitTransportProtocol::TransportIP::_dump_state(std::ostream& os) const {
  dump_connection(*this, os);
  dump::line(os, "alignment_indicator: ", alignment_indicator);
}

void DescriptorAitTransportProtocol::_dump_state(std::ostream& os) const {
  dump::line(os, "protocol_id: ", protocol_id);
  if (protocol_id == object_carousel) transport_OC._dump_state(os);
  if (protocol_id == ip) transport_IP._dump_state(os);
}

// routing_descriptor_IPv4

DescriptorAitRoutingIPv4::DescriptorAitRoutingIPv4(DescriptorBytes d) : DescriptorAitBase(d) {
  constexpr Failure mismatch{error::length_error, "routing_ipv4_descriptor: 1"};
  routing_ipv4_infos = d.body(mismatch).records<RoutingIPv4Info>(11, mismatch);
}

DescriptorAitRoutingIPv4::RoutingIPv4Info::RoutingIPv4Info(unsigned char const* p)
    : RoutingIPv4Info(record_at<RoutingIPv4Info>(p)) {}

DescriptorAitRoutingIPv4::RoutingIPv4Info::RoutingIPv4Info(Reader& r) {
  component_tag = r.u8();
  address = r.u32();
  port_number = r.u16();
  address_mask = r.u32();
}

void DescriptorAitRoutingIPv4::_dump_state(std::ostream& os) const {
  for (RoutingIPv4Info const& info : routing_ipv4_infos) {
    dump::line(os, "component_tag: ", info.component_tag);
    dump::line(os, "address: ", info.address);
    dump::line(os, "port_number: ", info.port_number);
    dump::line(os, "address_mask: ", info.address_mask);
  }
}

// routing_descriptor_IPv6

DescriptorAitRoutingIPv6::DescriptorAitRoutingIPv6(DescriptorBytes d) : DescriptorAitBase(d) {
  constexpr Failure mismatch{error::length_error, "routing_ipv4_descriptor: 1"};
  routing_ipv6_infos = d.body(mismatch).records<RoutingIPv6Info>(35, mismatch);
}

DescriptorAitRoutingIPv6::RoutingIPv6Info::RoutingIPv6Info(unsigned char const* p)
    : RoutingIPv6Info(record_at<RoutingIPv6Info>(p)) {}

DescriptorAitRoutingIPv6::RoutingIPv6Info::RoutingIPv6Info(Reader& r) {
  component_tag = r.u8();
  std::copy_n(r.raw(16), 16, address);
  port_number = r.u16();
  std::copy_n(r.raw(16), 16, address_mask);
}

void DescriptorAitRoutingIPv6::_dump_state(std::ostream& os) const {
  for (RoutingIPv6Info const& info : routing_ipv6_infos) {
    dump::line(os, "component_tag: ", info.component_tag);
    dump::block(os, "address:", {std::begin(info.address), std::end(info.address)});
    dump::line(os, "port_number: ", info.port_number);
    dump::block(os, "address_mask:", {std::begin(info.address_mask), std::end(info.address_mask)});
  }
}

// DII_location_descriptor

DescriptorAitDIILocation::DescriptorAitDIILocation(DescriptorBytes d) : DescriptorAitBase(d) {
  constexpr Failure mismatch{error::length_error, "dii_location_descriptor: 1"};
  Reader r = d.body(mismatch);
  transport_protocol_label = r.u8();
  dii_location_infos = r.records<DIILocationInfo>(4, mismatch);
}

DescriptorAitDIILocation::DIILocationInfo::DIILocationInfo(unsigned char const* p)
    : DIILocationInfo(record_at<DIILocationInfo>(p)) {}

DescriptorAitDIILocation::DIILocationInfo::DIILocationInfo(Reader& r) {
  r.skip_bits(1);
  DII_identification = r.bits(15);
  association_tag = r.u16();
}

void DescriptorAitDIILocation::_dump_state(std::ostream& os) const {
  dump::line(os, "transport_protocol_label: ", transport_protocol_label);
  for (DIILocationInfo const& info : dii_location_infos) {
    dump::line(os, "DII_identification: ", info.DII_identification);
    dump::line(os, "associatoin_tag: ", info.association_tag);
  }
}

// prefetch_descriptor

DescriptorAitPreFetch::DescriptorAitPreFetch(DescriptorBytes d) : DescriptorAitBase(d) {
  Reader r = d.body({error::length_error, "prefetch_descriptor: 1"});
  transport_protocol_label = r.u8();
  prefetch_info = r.walk<PreFetchInfo>();
}

DescriptorAitPreFetch::PreFetchInfo::PreFetchInfo(unsigned char const* p, int /*available*/, int& consumed)
    : PreFetchInfo(read_record<PreFetchInfo>(Reader::trusting(p), consumed)) {}

DescriptorAitPreFetch::PreFetchInfo::PreFetchInfo(Reader& r) {
  label_length = r.u8();
  label = r.string(label_length);
  prefetch_priority = r.u8();
}

void DescriptorAitPreFetch::_dump_state(std::ostream& os) const {
  dump::line(os, "transport_protocol_label: ", transport_protocol_label);
  for (PreFetchInfo const& info : prefetch_info) {
    dump::line(os, "label_length: ", info.label_length);
    dump::line(os, "label: ", info.label);
    dump::line(os, "prefetch_priority: ", info.prefetch_priority);
  }
}

// dvb_j_application_descriptor

DescriptorDVB_J_Application::DescriptorDVB_J_Application(DescriptorBytes d) : DescriptorAitBase(d) {
  Reader r = d.body();
  while (r.more()) parameter_infos.emplace_back(r);
}

void DescriptorDVB_J_Application::_dump_state(std::ostream& os) const {
  for (LengthPrefixedString const& parameter : parameter_infos) parameter.dump_state("parameter_info", os);
}

// dvb_j_application_location_descriptor

DescriptorDVB_J_ApplicationLocation::DescriptorDVB_J_ApplicationLocation(DescriptorBytes d)
    : DescriptorAitBase(d) {
  Reader r = d.body();
  base_directory = LengthPrefixedString(r);
  classpath_extension = LengthPrefixedString(r);
  initial_class = r.rest_as_string();
}

void DescriptorDVB_J_ApplicationLocation::_dump_state(std::ostream& os) const {
  base_directory.dump_state("base_directory", os);
  classpath_extension.dump_state("classpath_extension", os);
  dump::line(os, "initial_class: ", initial_class);
}

// dvb_html_application_descriptor

DescriptorDVB_HTML_Application::DescriptorDVB_HTML_Application(DescriptorBytes d) : DescriptorAitBase(d) {
  Reader r = d.body();
  application_id = LengthPrefixedString(r);
  parameter = r.rest_as_string();
}

void DescriptorDVB_HTML_Application::_dump_state(std::ostream& os) const {
  application_id.dump_state("application_id", os);
  dump::line(os, "parameter: ", parameter);
}

// dvb_html_application_location_descriptor

DescriptorDVB_HTML_ApplicationLocation::DescriptorDVB_HTML_ApplicationLocation(DescriptorBytes d)
    : DescriptorAitBase(d) {
  Reader r = d.body();
  physical_root = LengthPrefixedString(r);
  initial_path = r.rest_as_string();
}

void DescriptorDVB_HTML_ApplicationLocation::_dump_state(std::ostream& os) const {
  physical_root.dump_state("physical_root", os);
  dump::line(os, "initial_path: ", initial_path);
}

// dvb_html_application_boundary_descriptor

DescriptorDVB_HTML_ApplicationLocationBoundary::DescriptorDVB_HTML_ApplicationLocationBoundary(
    DescriptorBytes d)
    : DescriptorAitBase(d) {
  Reader r = d.body();
  label = LengthPrefixedString(r);
  regular_expression = r.rest_as_string();
}

void DescriptorDVB_HTML_ApplicationLocationBoundary::_dump_state(std::ostream& os) const {
  label.dump_state("label", os);
  dump::line(os, "regular_expression: ", regular_expression);
}

}  // namespace sivane
