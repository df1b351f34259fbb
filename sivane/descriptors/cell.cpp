// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/cell.h>
#include <sivane/descriptors/value_text.h>

namespace sivane {

// cell_list_descriptor

DescriptorCellList::DescriptorCellList(DescriptorBytes d) : DescriptorBase(d) {
  cell_list_data = d.body({error::syntax_error}).walk<CellListData>();
}

DescriptorCellList::CellListData::CellListData(unsigned char const* p, int /*size*/, int& consumed)
    : CellListData(read_record<CellListData>(Reader::trusting(p), consumed)) {}

DescriptorCellList::CellListData::CellListData(Reader& r) {
  cell_id = r.u16();
  cell_latitude = r.u16();
  cell_longitude = r.u16();
  cell_extend_of_latitude = r.bits(12);
  cell_extend_of_longitude = r.bits(12);
  subcell_info_length = r.u8();
  if (subcell_info_length % 8 != 0) r.fail({error::item_length_error}, -1);
  sub_cell_info = r.sub(subcell_info_length).walk<SubCellInfo>();
}

DescriptorCellList::CellListData::SubCellInfo::SubCellInfo(Reader& r) {
  cell_id_extension = r.u8();
  cell_latitude = r.u16();
  cell_longitude = r.u16();
  cell_extend_of_latitude = r.bits(12);
  cell_extend_of_longitude = r.bits(12);
}

// cell_frequency_link_descriptor

DescriptorCellFrequncyLink::DescriptorCellFrequncyLink(DescriptorBytes d) : DescriptorBase(d) {
  cell_frequency_link_data = d.body({error::syntax_error}).walk<CellFrequencyLinkData>();
}

DescriptorCellFrequncyLink::CellFrequencyLinkData::CellFrequencyLinkData(unsigned char const* p, int /*size*/,
                                                                         int& consumed)
    : CellFrequencyLinkData(read_record<CellFrequencyLinkData>(Reader::trusting(p), consumed)) {}

DescriptorCellFrequncyLink::CellFrequencyLinkData::CellFrequencyLinkData(Reader& r) {
  cell_id = r.u16();
  frequency = r.u32();
  sub_cell_info_length = r.u8();
  if (sub_cell_info_length % 5 != 0) r.fail({error::item_length_error}, -1);
  sub_cell_info = r.sub(sub_cell_info_length).walk<SubCellInfo>();
}

DescriptorCellFrequncyLink::CellFrequencyLinkData::SubCellInfo::SubCellInfo(Reader& r) {
  cell_id_extension = r.u8();
  transposer_frequency = r.u32();
}

// announcement_support_descriptor

DescriptorAnnouncementSupport::DescriptorAnnouncementSupport(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body({error::syntax_error});
  announcement_support_indicator = r.u16();
  announcement_support_data = r.walk<AnnouncementSupportData>();
}

DescriptorAnnouncementSupport::AnnouncementSupportData::AnnouncementSupportData(unsigned char const* p,
                                                                                int /*size*/, int& consumed)
    : AnnouncementSupportData(read_record<AnnouncementSupportData>(Reader::trusting(p), consumed)) {}

DescriptorAnnouncementSupport::AnnouncementSupportData::AnnouncementSupportData(Reader& r) {
  announcement_type = r.bits(4);
  r.skip_bits(1);
  reference_type = r.bits(3);
  if (reference_type < 1 || reference_type > 3) return;
  original_network_id = r.u16();
  transport_stream_id = r.u16();
  service_id = r.u16();
  component_tag = r.u8();
}

// application_signalling_descriptor

DescriptorApplicationSignalling::DescriptorApplicationSignalling(DescriptorBytes d) : DescriptorBase(d) {
  application_info = d.body().records<ApplicationInfo>(3, {error::no_errorcode, ""});
}

DescriptorApplicationSignalling::ApplicationInfo::ApplicationInfo(Reader& r) {
  application_type = r.u16();
  r.skip_bits(3);
  AIT_version_number = r.bits(5);
}

char const* DescriptorApplicationSignalling::ApplicationInfo::get_application_type_text() const {
  static constexpr char const* texts[] = {"reserved_future_use", "DVB-J application", "DVB-HTML application"};
  return value_text(texts, application_type, "subject to registration with DVB");
}

// data_broadcast_descriptor

DescriptorDataBroadcast::DescriptorDataBroadcast(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  data_broadcast_id = r.u16();
  component_tag = r.u8();
  selector_length = r.u8();
  selector_bytes = r.bytes(selector_length);
  r.code(language_code);
  textlength = r.u8();
  text = r.string(textlength);
}

// data_broadcast_id_descriptor

DescriptorDataBroadcastId::DescriptorDataBroadcastId(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  data_broadcast_id = r.u16();
  id_selector_byte = r.rest();
}

}  // namespace sivane
