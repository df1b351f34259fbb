// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/stream.h>
#include <sivane/descriptors/value_text.h>
#include <sivane/foundation/dump_lines.h>

#include <ostream>

namespace sivane {

using dump::line;

// stream_identifier_descriptor

DescriptorStreamIdentifier::DescriptorStreamIdentifier(DescriptorBytes d) : DescriptorBase(d) {
  component_tag = d.body().u8();
}

void DescriptorStreamIdentifier::_dump_state(std::ostream& os) const {
  line(os, "component_tag: ", component_tag);
}

// teletext_descriptor

DescriptorTeletext::DescriptorTeletext(DescriptorBytes d) : DescriptorBase(d) {
  teletextitems = d.body().records<TeletextItem>(5, {error::no_errorcode, "descriptor length mismatch"});
}

DescriptorTeletext::TeletextItem::TeletextItem(Reader& r) {
  r.code(language_code);
  teletext_type = r.bits(5);
  teletext_magazine_number = r.bits(3);
  teletext_page_number = r.u8();
}

char const* DescriptorTeletext::TeletextItem::get_teletext_type_text() const {
  static constexpr char const* texts[] = {"initial teletext page", "teletext subtitle page",
                                          "additional information page", "programme schedule page"};
  return value_text(texts, teletext_type, "reserved for future use", 1);
}

void DescriptorTeletext::TeletextItem::dump_state(std::ostream& os) const {
  line(os, "language_code ", language_code);
  line(os, "teletext_type ", teletext_type);
  line(os, "teletext_magazine_number ", teletext_magazine_number);
  line(os, "teletext_page_number ", teletext_page_number);
}

void DescriptorTeletext::_dump_state(std::ostream& os) const { dump::each(os, teletextitems); }

// VBI_teletext_descriptor

DescriptorVBITeletext::DescriptorVBITeletext(DescriptorBytes d) : DescriptorBase(d) {
  vbiteletextdata = d.body().records<VBITeleTextData>(5, {error::item_length_error});
}

DescriptorVBITeletext::VBITeleTextData::VBITeleTextData(Reader& r) {
  r.code(ISO_639_language_code);
  teletext_type = r.bits(5);
  teletext_magazine_number = r.bits(3);
  teletext_page_number = r.u8();
}

// subtitling_descriptor

DescriptorSubtitling::DescriptorSubtitling(DescriptorBytes d) : DescriptorBase(d) {
  subtitlinginfo = d.body().records<SubtitlingInfo>(8, {error::length_error, "subtitling_descriptor"});
}

DescriptorSubtitling::SubtitlingInfo::SubtitlingInfo(Reader& r) {
  r.code(ISO_639_language_code);
  subtitling_type = r.u8();
  composition_page_id = r.u16();
  antcillary_page_id = r.u16();
}

void DescriptorSubtitling::SubtitlingInfo::_dump_state(std::ostream& os) const {
  line(os, "DescriptorSubtitling::ISO_639_language_code: ", ISO_639_language_code);
  line(os, "DescriptorSubtitling::subtitling_type: ", subtitling_type);
  line(os, "DescriptorSubtitling::composition_page_id: ", composition_page_id);
  line(os, "DescriptorSubtitling::antcillary_page_id: ", antcillary_page_id);
}

void DescriptorSubtitling::_dump_state(std::ostream& os) const {
  for (SubtitlingInfo const& info : subtitlinginfo) info._dump_state(os);
}

// VBI_data_descriptor

DescriptorVBIData::DescriptorVBIData(DescriptorBytes d) : DescriptorBase(d) {
  vbiservicedata = d.body({error::syntax_error}).walk<VBIServiceData>();
}

DescriptorVBIData::VBIServiceData::VBIServiceData(unsigned char const* p, int /*size*/, int& consumed)
    : VBIServiceData(read_record<VBIServiceData>(Reader::trusting(p), consumed)) {}

DescriptorVBIData::VBIServiceData::VBIServiceData(Reader& r) {
  data_service_id = r.u8();
  data_service_descriptor_length = r.u8();
  data = r.bytes(data_service_descriptor_length);
}

// AC-3_descriptor

DescriptorAC3::DescriptorAC3(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  component_type_flag = r.bits(1);
  bsid_flag = r.bits(1);
  mainid_flag = r.bits(1);
  asvc_flag = r.bits(1);
  r.skip_bits(4);
  if (component_type_flag != 0) AC_3_type = r.u8();
  if (bsid_flag != 0) bsid = r.u8();
  if (mainid_flag != 0) mainid = r.u8();
  if (asvc_flag != 0) asvc = r.u8();
  additional_info = r.rest();
}

// ancillary_data_descriptor

DescriptorAncillaryData::DescriptorAncillaryData(DescriptorBytes d) : DescriptorBase(d) {
  ancillary_data_identifier = d.body().u8();
}

// short_smoothing_buffer_descriptor

DescriptorShortSmoothingBuffer::DescriptorShortSmoothingBuffer(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  sb_size = r.bits(2);
  sb_leak_rate = r.bits(6);
  DVB_reserved = r.rest();
}

void DescriptorShortSmoothingBuffer::_dump_state(std::ostream& os) const {
  line(os, "sb_size: ", sb_size);
  line(os, "sb_leak_rate: ", sb_leak_rate);
  dump::block_if_any(os, "DVB_reserved:", DVB_reserved);
}

// partial_transport_stream_descriptor

DescriptorPartialTransportStream::DescriptorPartialTransportStream(DescriptorBytes d) : DescriptorBase(d) {}

// adaptation_field_data_descriptor

DescriptorAdaptationFieldData::DescriptorAdaptationFieldData(DescriptorBytes d) : DescriptorBase(d) {
  adaptation_field_data_identifier = d.body().u8();
}

// DSNG_descriptor

DescriptorDSNG::DescriptorDSNG(DescriptorBytes d) : DescriptorBase(d), DSNG_data(d.body().rest()) {}

// transport_stream_descriptor

DescriptorTransportStream::DescriptorTransportStream(DescriptorBytes d)
    : DescriptorBase(d), transport_stream_data(d.body().rest()) {}

}  // namespace sivane
