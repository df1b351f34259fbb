// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/channels.h>
#include <sivane/fields/field_list.h>

namespace sivane {

RECORD_FIELDS(ChannelNumber) {
  f.add(FIELD(service_id), 16);
  f.add(FIELD(visible_service_flag));
  f.add(FIELD(logical_channel_number), 10);
}

void DescriptorLogicalChannel::_fields(FieldList& f) { f.list(FIELD(services), u"service"); }

void DescriptorHDSimulcastLogicalChannel::_fields(FieldList& f) { f.list(FIELD(services), u"service"); }

RECORD_FIELDS(DescriptorNorDigLogicalChannel::Service) {
  f.add(FIELD(service_id), 16);
  f.add(FIELD(visible_service_flag));
  f.add(FIELD(logical_channel_number), 14);
}

void DescriptorNorDigLogicalChannel::_fields(FieldList& f) { f.list(FIELD(services), u"service"); }

RECORD_FIELDS(DescriptorNorDigChannelLists::ChannelList) {
  f.add(FIELD(channel_list_id), 8);
  f.text(FIELD(channel_list_name));
  f.add(FIELD(country_code));
  f.list(FIELD(services), u"service");
}

void DescriptorNorDigChannelLists::_fields(FieldList& f) { f.list(FIELD(channel_lists), u"channel_list"); }

}  // namespace sivane
