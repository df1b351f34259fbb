// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/cell.h>
#include <sivane/fields/field_list.h>

namespace sivane {

RECORD_FIELDS(DescriptorCellList::CellListData::SubCellInfo) {
  f.add(FIELD(cell_id_extension), 8);
  f.add(FIELD(cell_latitude), 16);
  f.add(FIELD(cell_longitude), 16);
  f.add(FIELD(cell_extend_of_latitude), 12);
  f.add(FIELD(cell_extend_of_longitude), 12);
}

RECORD_FIELDS(DescriptorCellList::CellListData) {
  f.add(FIELD(cell_id), 16);
  f.add(FIELD(cell_latitude), 16);
  f.add(FIELD(cell_longitude), 16);
  f.add(FIELD(cell_extend_of_latitude), 12);
  f.add(FIELD(cell_extend_of_longitude), 12);
  f.add(FIELD(subcell_info_length), 8);
  f.list(FIELD(sub_cell_info), u"info");
}

void DescriptorCellList::_fields(FieldList& f) { f.list(FIELD(cell_list_data), u"data"); }

RECORD_FIELDS(DescriptorCellFrequncyLink::CellFrequencyLinkData::SubCellInfo) {
  f.add(FIELD(cell_id_extension), 8);
  f.add(FIELD(transposer_frequency), 32);
}

RECORD_FIELDS(DescriptorCellFrequncyLink::CellFrequencyLinkData) {
  f.add(FIELD(cell_id), 16);
  f.add(FIELD(frequency), 32);
  f.add(FIELD(sub_cell_info_length), 8);
  f.list(FIELD(sub_cell_info), u"info");
}

void DescriptorCellFrequncyLink::_fields(FieldList& f) { f.list(FIELD(cell_frequency_link_data), u"data"); }

RECORD_FIELDS(DescriptorAnnouncementSupport::AnnouncementSupportData) {
  f.add(FIELD(announcement_type), 4);
  f.add(FIELD(reference_type), 3);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(service_id), 16);
  f.add(FIELD(component_tag), 8);
}

void DescriptorAnnouncementSupport::_fields(FieldList& f) {
  f.add(FIELD(announcement_support_indicator), 16);
  f.list(FIELD(announcement_support_data), u"data");
}

RECORD_FIELDS(DescriptorApplicationSignalling::ApplicationInfo) {
  f.add(FIELD(application_type), 16);
  f.add(FIELD(AIT_version_number), 5);
}

void DescriptorApplicationSignalling::_fields(FieldList& f) { f.list(FIELD(application_info), u"info"); }

void DescriptorDataBroadcast::_fields(FieldList& f) {
  f.add(FIELD(data_broadcast_id), 16);
  f.add(FIELD(component_tag), 8);
  f.add(FIELD(selector_length), 8);
  f.add(FIELD(language_code));
  f.add(FIELD(textlength), 8);
  f.text(FIELD(text));
  f.add(FIELD(selector_bytes));
}

void DescriptorDataBroadcastId::_fields(FieldList& f) {
  f.add(FIELD(data_broadcast_id), 16);
  f.add(UNSAVED(id_selector_byte));
}

}  // namespace sivane
