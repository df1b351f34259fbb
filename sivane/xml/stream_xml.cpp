// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/stream.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorStreamIdentifier& d) { ar.attr(u"component_tag", d.component_tag); }
SIVANE_XML(DescriptorStreamIdentifier)

static void fields(Archive& ar, DescriptorTeletext::TeletextItem& r) {
  ar.attr(u"teletext_type", r.teletext_type);
  ar.attr(u"language_code", r.language_code);
  ar.attr(u"teletext_magazine_number", r.teletext_magazine_number);
  ar.attr(u"teletext_page_number", r.teletext_page_number);
}
SIVANE_XML_RECORD(DescriptorTeletext::TeletextItem)

static void fields(Archive& ar, DescriptorTeletext& d) {
  ar.list(u"teletextitems", u"teletext", d.teletextitems);
}
SIVANE_XML(DescriptorTeletext)

static void fields(Archive& ar, DescriptorVBITeletext::VBITeleTextData& r) {
  ar.attr(u"teletext_type", r.teletext_type);
  ar.attr(u"teletext_magazine_number", r.teletext_magazine_number);
  ar.attr(u"teletext_page_number", r.teletext_page_number);
  ar.attr(u"ISO_639_language_code", r.ISO_639_language_code);
}
SIVANE_XML_RECORD(DescriptorVBITeletext::VBITeleTextData)

static void fields(Archive& ar, DescriptorVBITeletext& d) {
  ar.list(u"vbiteletextdata", u"vbi", d.vbiteletextdata);
}
SIVANE_XML(DescriptorVBITeletext)

static void fields(Archive& ar, DescriptorSubtitling::SubtitlingInfo& r) {
  ar.attr(u"subtitling_type", r.subtitling_type);
  ar.attr(u"composition_page_id", r.composition_page_id);
  ar.attr(u"antcillary_page_id", r.antcillary_page_id);
  ar.attr(u"ISO_639_language_code", r.ISO_639_language_code);
}
SIVANE_XML_RECORD(DescriptorSubtitling::SubtitlingInfo)

static void fields(Archive& ar, DescriptorSubtitling& d) {
  ar.list(u"subtitlinginfo", u"info", d.subtitlinginfo);
}
SIVANE_XML(DescriptorSubtitling)

static void fields(Archive& ar, DescriptorVBIData::VBIServiceData& r) {
  ar.attr(u"data_service_id", r.data_service_id);
  ar.attr(u"data_service_descriptor_length", r.data_service_descriptor_length);
  ar.attr(u"data", r.data);
}
SIVANE_XML_RECORD(DescriptorVBIData::VBIServiceData)

static void fields(Archive& ar, DescriptorVBIData& d) {
  ar.list(u"vbiservicedata", u"vbi", d.vbiservicedata);
}
SIVANE_XML(DescriptorVBIData)

static void fields(Archive& ar, DescriptorAC3& d) {
  ar.attr(u"component_type_flag", d.component_type_flag);
  ar.attr(u"bsid_flag", d.bsid_flag);
  ar.attr(u"mainid_flag", d.mainid_flag);
  ar.attr(u"asvc_flag", d.asvc_flag);
  ar.attr(u"AC_3_type", d.AC_3_type);
  ar.attr(u"bsid", d.bsid);
  ar.attr(u"mainid", d.mainid);
  ar.attr(u"asvc", d.asvc);
  ar.attr(u"additional_info", d.additional_info);
}
SIVANE_XML(DescriptorAC3)

static void fields(Archive& ar, DescriptorAncillaryData& d) {
  ar.attr(u"ancillary_data_identifier", d.ancillary_data_identifier);
}
SIVANE_XML(DescriptorAncillaryData)

static void fields(Archive& ar, DescriptorShortSmoothingBuffer& d) {
  ar.attr(u"sb_size", d.sb_size);
  ar.attr(u"sb_leak_rate", d.sb_leak_rate);
  ar.attr(u"DVB_reserved", d.DVB_reserved);
}
SIVANE_XML(DescriptorShortSmoothingBuffer)

static void fields(Archive& ar, DescriptorAdaptationFieldData& d) {
  ar.attr(u"adaptation_field_data_identifier", d.adaptation_field_data_identifier);
}
SIVANE_XML(DescriptorAdaptationFieldData)

static void fields(Archive& ar, DescriptorDSNG& d) { ar.attr(u"DSNG_data", d.DSNG_data); }
SIVANE_XML(DescriptorDSNG)

static void fields(Archive& ar, DescriptorTransportStream& d) {
  ar.attr(u"transport_stream_data", d.transport_stream_data);
}
SIVANE_XML(DescriptorTransportStream)

// Without members the attributes are not even asked for.
bool DescriptorPartialTransportStream::_save_section(void*, void*) const { return true; }
void DescriptorPartialTransportStream::_parse(void*) {}

}  // namespace sivane
