# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
#
# Made by python/stubs/make_stubs.py. The classes of records are in the stubs alone.
from datetime import datetime, timedelta
from typing import Final

from ._sivane import Descriptor, Record, Table

class _DescriptorAitApplication_application_profiles(Record):
    application_profile: Final[int]
    version_major: Final[int]
    version_minor: Final[int]
    version_micro: Final[int]

class DescriptorAitApplication(Descriptor):
    application_profiles_length: Final[int]
    service_bound_flag: Final[int]
    visibility: Final[int]
    application_priority: Final[int]
    transport_protocol_labels: Final[bytes]
    application_profiles: Final[tuple[_DescriptorAitApplication_application_profiles, ...]]

class DescriptorAitApplicationIcons(Descriptor):
    icon_locator_length: Final[int]
    icon_locator: Final[str]
    icon_flags: Final[int]
    reserved_future_use: Final[bytes]

class _DescriptorAitApplicationName_application_name_infos(Record):
    application_name_length: Final[int]
    application_name: Final[str]
    ISO_639_language_code: Final[str]

class DescriptorAitApplicationName(Descriptor):
    application_name_infos: Final[tuple[_DescriptorAitApplicationName_application_name_infos, ...]]

class _DescriptorAitDIILocation_dii_location_infos(Record):
    DII_identification: Final[int]
    association_tag: Final[int]

class DescriptorAitDIILocation(Descriptor):
    transport_protocol_label: Final[int]
    dii_location_infos: Final[tuple[_DescriptorAitDIILocation_dii_location_infos, ...]]

class _DescriptorAitExternalApplicationAuthorisation_external_application_authorisation_infos_application_identifer(Record):
    organisation_id: Final[int]
    application_id: Final[int]

class _DescriptorAitExternalApplicationAuthorisation_external_application_authorisation_infos(Record):
    application_priority: Final[int]
    application_identifer: Final[_DescriptorAitExternalApplicationAuthorisation_external_application_authorisation_infos_application_identifer]

class DescriptorAitExternalApplicationAuthorisation(Descriptor):
    external_application_authorisation_infos: Final[tuple[_DescriptorAitExternalApplicationAuthorisation_external_application_authorisation_infos, ...]]

class _DescriptorAitPreFetch_prefetch_info(Record):
    label_length: Final[int]
    label: Final[str]
    prefetch_priority: Final[int]

class DescriptorAitPreFetch(Descriptor):
    transport_protocol_label: Final[int]
    prefetch_info: Final[tuple[_DescriptorAitPreFetch_prefetch_info, ...]]

class _DescriptorAitRoutingIPv4_routing_ipv4_infos(Record):
    component_tag: Final[int]
    address: Final[int]
    port_number: Final[int]
    address_mask: Final[int]

class DescriptorAitRoutingIPv4(Descriptor):
    routing_ipv4_infos: Final[tuple[_DescriptorAitRoutingIPv4_routing_ipv4_infos, ...]]

class _DescriptorAitRoutingIPv6_routing_ipv6_infos(Record):
    component_tag: Final[int]
    address: Final[bytes]
    port_number: Final[int]
    address_mask: Final[bytes]

class DescriptorAitRoutingIPv6(Descriptor):
    routing_ipv6_infos: Final[tuple[_DescriptorAitRoutingIPv6_routing_ipv6_infos, ...]]

class _DescriptorAitTransportProtocol_transport_OC(Record):
    remote_connection: Final[int]
    original_network_id: Final[int]
    transport_stream_id: Final[int]
    service_id: Final[int]
    component_tag: Final[int]

class _DescriptorAitTransportProtocol_transport_IP(Record):
    remote_connection: Final[int]
    original_network_id: Final[int]
    transport_stream_id: Final[int]
    service_id: Final[int]
    alignment_indicator: Final[int]

class DescriptorAitTransportProtocol(Descriptor):
    protocol_id: Final[int]
    transport_protocol_label: Final[int]
    transport_OC: Final[_DescriptorAitTransportProtocol_transport_OC]
    transport_IP: Final[_DescriptorAitTransportProtocol_transport_IP]

class _DescriptorDVB_HTML_Application_application_id(Record):
    length: Final[int]
    value: Final[str]

class DescriptorDVB_HTML_Application(Descriptor):
    parameter: Final[str]
    application_id: Final[_DescriptorDVB_HTML_Application_application_id]

class _DescriptorDVB_HTML_ApplicationLocation_physical_root(Record):
    length: Final[int]
    value: Final[str]

class DescriptorDVB_HTML_ApplicationLocation(Descriptor):
    initial_path: Final[str]
    physical_root: Final[_DescriptorDVB_HTML_ApplicationLocation_physical_root]

class _DescriptorDVB_HTML_ApplicationLocationBoundary_label(Record):
    length: Final[int]
    value: Final[str]

class DescriptorDVB_HTML_ApplicationLocationBoundary(Descriptor):
    regular_expression: Final[str]
    label: Final[_DescriptorDVB_HTML_ApplicationLocationBoundary_label]

class _DescriptorDVB_J_Application_parameter_infos(Record):
    length: Final[int]
    value: Final[str]

class DescriptorDVB_J_Application(Descriptor):
    parameter_infos: Final[tuple[_DescriptorDVB_J_Application_parameter_infos, ...]]

class _DescriptorDVB_J_ApplicationLocation_base_directory(Record):
    length: Final[int]
    value: Final[str]

class _DescriptorDVB_J_ApplicationLocation_classpath_extension(Record):
    length: Final[int]
    value: Final[str]

class DescriptorDVB_J_ApplicationLocation(Descriptor):
    initial_class: Final[str]
    base_directory: Final[_DescriptorDVB_J_ApplicationLocation_base_directory]
    classpath_extension: Final[_DescriptorDVB_J_ApplicationLocation_classpath_extension]
