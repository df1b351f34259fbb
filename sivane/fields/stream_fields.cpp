// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/stream.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorStreamIdentifier::_fields(FieldList& f) { f.add(FIELD(component_tag), 8); }

RECORD_FIELDS(DescriptorTeletext::TeletextItem) {
  f.add(FIELD(teletext_type), 5);
  f.add(FIELD(language_code));
  f.add(FIELD(teletext_magazine_number), 3);
  f.add(FIELD(teletext_page_number), 8);
}

void DescriptorTeletext::_fields(FieldList& f) { f.list(FIELD(teletextitems), u"teletext"); }

RECORD_FIELDS(DescriptorVBITeletext::VBITeleTextData) {
  f.add(FIELD(teletext_type), 5);
  f.add(FIELD(teletext_magazine_number), 3);
  f.add(FIELD(teletext_page_number), 8);
  f.add(FIELD(ISO_639_language_code));
}

void DescriptorVBITeletext::_fields(FieldList& f) { f.list(FIELD(vbiteletextdata), u"vbi"); }

RECORD_FIELDS(DescriptorSubtitling::SubtitlingInfo) {
  f.add(FIELD(subtitling_type), 8);
  f.add(FIELD(composition_page_id), 16);
  f.add(FIELD(antcillary_page_id), 16);
  f.add(FIELD(ISO_639_language_code));
}

void DescriptorSubtitling::_fields(FieldList& f) { f.list(FIELD(subtitlinginfo), u"info"); }

RECORD_FIELDS(DescriptorVBIData::VBIServiceData) {
  f.add(FIELD(data_service_id), 8);
  f.add(FIELD(data_service_descriptor_length), 8);
  f.add(FIELD(data));
}

void DescriptorVBIData::_fields(FieldList& f) { f.list(FIELD(vbiservicedata), u"vbi"); }

void DescriptorAC3::_fields(FieldList& f) {
  f.add(FIELD(component_type_flag), 1);
  f.add(FIELD(bsid_flag), 1);
  f.add(FIELD(mainid_flag), 1);
  f.add(FIELD(asvc_flag), 1);
  f.add(FIELD(AC_3_type), 8);
  f.add(FIELD(bsid), 8);
  f.add(FIELD(mainid), 8);
  f.add(FIELD(asvc), 8);
  f.add(FIELD(additional_info));
}

void DescriptorAncillaryData::_fields(FieldList& f) { f.add(FIELD(ancillary_data_identifier), 8); }

void DescriptorShortSmoothingBuffer::_fields(FieldList& f) {
  f.add(FIELD(sb_size), 2);
  f.add(FIELD(sb_leak_rate), 6);
  f.add(FIELD(DVB_reserved));
}

void DescriptorAdaptationFieldData::_fields(FieldList& f) {
  f.add(FIELD(adaptation_field_data_identifier), 8);
}

void DescriptorDSNG::_fields(FieldList& f) { f.add(FIELD(DSNG_data)); }

void DescriptorTransportStream::_fields(FieldList& f) { f.add(FIELD(transport_stream_data)); }

// Without members the attributes are not even asked for.
void DescriptorPartialTransportStream::_fields(FieldList&) {}

}  // namespace sivane
