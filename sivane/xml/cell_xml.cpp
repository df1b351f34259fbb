// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/cell.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorCellList::CellListData::SubCellInfo& r) {
  ar.attr(u"cell_id_extension", r.cell_id_extension);
  ar.attr(u"cell_latitude", r.cell_latitude);
  ar.attr(u"cell_longitude", r.cell_longitude);
  ar.attr(u"cell_extend_of_latitude", r.cell_extend_of_latitude);
  ar.attr(u"cell_extend_of_longitude", r.cell_extend_of_longitude);
}
SIVANE_XML_RECORD(DescriptorCellList::CellListData::SubCellInfo)

static void fields(Archive& ar, DescriptorCellList::CellListData& r) {
  ar.attr(u"cell_id", r.cell_id);
  ar.attr(u"cell_latitude", r.cell_latitude);
  ar.attr(u"cell_longitude", r.cell_longitude);
  ar.attr(u"cell_extend_of_latitude", r.cell_extend_of_latitude);
  ar.attr(u"cell_extend_of_longitude", r.cell_extend_of_longitude);
  ar.attr(u"subcell_info_length", r.subcell_info_length);
  ar.list(u"sub_cell_info", u"info", r.sub_cell_info);
}
SIVANE_XML_RECORD(DescriptorCellList::CellListData)

static void fields(Archive& ar, DescriptorCellList& d) {
  ar.list(u"cell_list_data", u"data", d.cell_list_data);
}
SIVANE_XML(DescriptorCellList)

static void fields(Archive& ar, DescriptorCellFrequncyLink::CellFrequencyLinkData::SubCellInfo& r) {
  ar.attr(u"cell_id_extension", r.cell_id_extension);
  ar.attr(u"transposer_frequency", r.transposer_frequency);
}
SIVANE_XML_RECORD(DescriptorCellFrequncyLink::CellFrequencyLinkData::SubCellInfo)

static void fields(Archive& ar, DescriptorCellFrequncyLink::CellFrequencyLinkData& r) {
  ar.attr(u"cell_id", r.cell_id);
  ar.attr(u"frequency", r.frequency);
  ar.attr(u"sub_cell_info_length", r.sub_cell_info_length);
  ar.list(u"sub_cell_info", u"info", r.sub_cell_info);
}
SIVANE_XML_RECORD(DescriptorCellFrequncyLink::CellFrequencyLinkData)

static void fields(Archive& ar, DescriptorCellFrequncyLink& d) {
  ar.list(u"cell_frequency_link_data", u"data", d.cell_frequency_link_data);
}
SIVANE_XML(DescriptorCellFrequncyLink)

static void fields(Archive& ar, DescriptorAnnouncementSupport::AnnouncementSupportData& r) {
  ar.attr(u"announcement_type", r.announcement_type);
  ar.attr(u"reference_type", r.reference_type);
  ar.attr(u"original_network_id", r.original_network_id);
  ar.attr(u"transport_stream_id", r.transport_stream_id);
  ar.attr(u"service_id", r.service_id);
  ar.attr(u"component_tag", r.component_tag);
}
SIVANE_XML_RECORD(DescriptorAnnouncementSupport::AnnouncementSupportData)

static void fields(Archive& ar, DescriptorAnnouncementSupport& d) {
  ar.attr(u"announcement_support_indicator", d.announcement_support_indicator);
  ar.list(u"announcement_support_data", u"data", d.announcement_support_data);
}
SIVANE_XML(DescriptorAnnouncementSupport)

static void fields(Archive& ar, DescriptorApplicationSignalling::ApplicationInfo& r) {
  ar.attr(u"application_type", r.application_type);
  ar.attr(u"AIT_version_number", r.AIT_version_number);
}
SIVANE_XML_RECORD(DescriptorApplicationSignalling::ApplicationInfo)

static void fields(Archive& ar, DescriptorApplicationSignalling& d) {
  ar.list(u"application_info", u"info", d.application_info);
}
SIVANE_XML(DescriptorApplicationSignalling)

static void fields(Archive& ar, DescriptorDataBroadcast& d) {
  ar.attr(u"data_broadcast_id", d.data_broadcast_id);
  ar.attr(u"component_tag", d.component_tag);
  ar.attr(u"selector_length", d.selector_length);
  ar.attr(u"language_code", d.language_code);
  ar.attr(u"textlength", d.textlength);
  ar.attr(u"text", d.text);
  ar.attr(u"selector_bytes", d.selector_bytes);
}
SIVANE_XML(DescriptorDataBroadcast)

static void fields(Archive& ar, DescriptorDataBroadcastId& d) {
  ar.attr(u"data_broadcast_id", d.data_broadcast_id);
}
SIVANE_XML(DescriptorDataBroadcastId)

}  // namespace sivane
