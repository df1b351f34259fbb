// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/channels.h>
#include <sivane/descriptors/extended/exact_body.h>

namespace sivane {

ChannelNumber::ChannelNumber(Reader& r) {
  service_id = r.u16();
  visible_service_flag = r.flag();
  r.skip_bits(5);
  logical_channel_number = r.bits(10);
}

// logical_channel_descriptor, HD_simulcast_logical_channel_descriptor

DescriptorLogicalChannel::DescriptorLogicalChannel(DescriptorBytes d)
    : ExtendedDescriptor(d), services(exact_body(d).walk<ChannelNumber>()) {}

DescriptorHDSimulcastLogicalChannel::DescriptorHDSimulcastLogicalChannel(DescriptorBytes d)
    : ExtendedDescriptor(d), services(exact_body(d).walk<ChannelNumber>()) {}

// nordig_logical_channel_descriptor_version_1

DescriptorNorDigLogicalChannel::DescriptorNorDigLogicalChannel(DescriptorBytes d)
    : ExtendedDescriptor(d), services(exact_body(d).walk<Service>()) {}

DescriptorNorDigLogicalChannel::Service::Service(Reader& r) {
  service_id = r.u16();
  visible_service_flag = r.flag();
  r.skip_bits(1);
  logical_channel_number = r.bits(14);
}

// nordig_logical_channel_descriptor_version_2

DescriptorNorDigChannelLists::DescriptorNorDigChannelLists(DescriptorBytes d)
    : ExtendedDescriptor(d), channel_lists(exact_body(d).walk<ChannelList>()) {}

DescriptorNorDigChannelLists::ChannelList::ChannelList(Reader& r) {
  channel_list_id = r.u8();
  channel_list_name = r.prefixed_string();
  r.code(country_code);
  services = exact_loop(r, r.u8()).walk<ChannelNumber>();
}

}  // namespace sivane
