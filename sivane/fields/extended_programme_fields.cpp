// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/programme.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorDefaultAuthority::_fields(FieldList& f) { f.add(FIELD(default_authority)); }

void DescriptorRelatedContent::_fields(FieldList&) {}

RECORD_FIELDS(DescriptorTVAId::Id) {
  f.add(FIELD(TVA_id), 16);
  f.add(FIELD(running_status), 3);
}

void DescriptorTVAId::_fields(FieldList& f) { f.list(FIELD(ids), u"id"); }

RECORD_FIELDS(DescriptorContentIdentifier::Crid) {
  f.add(FIELD(crid_type), 6);
  f.add(FIELD(crid_location), 2);
  f.add(FIELD(crid));
  f.add(FIELD(crid_ref), 16);
}

void DescriptorContentIdentifier::_fields(FieldList& f) { f.list(FIELD(crids), u"crid"); }

void DescriptorXAITLocation::_fields(FieldList& f) {
  f.add(FIELD(xait_original_network_id), 16);
  f.add(FIELD(xait_service_id), 16);
  f.add(FIELD(xait_version_number), 5);
  f.add(FIELD(xait_update_policy), 3);
}

void DescriptorFTAContentManagement::_fields(FieldList& f) {
  f.add(FIELD(user_defined));
  f.add(FIELD(do_not_scramble));
  f.add(FIELD(control_remote_access_over_internet), 2);
  f.add(FIELD(do_not_apply_revocation));
}

void DescriptorScrambling::_fields(FieldList& f) { f.add(FIELD(scrambling_mode), 8); }

void DescriptorImageIcon::_fields(FieldList& f) {
  f.add(FIELD(descriptor_number), 4);
  f.add(FIELD(last_descriptor_number), 4);
  f.add(FIELD(icon_id), 3);
  f.add(FIELD(icon_transport_mode), 2);
  f.add(FIELD(position_flag));
  f.add(FIELD(coordinate_system), 3);
  f.add(FIELD(icon_horizontal_origin), 12);
  f.add(FIELD(icon_vertical_origin), 12);
  f.add(FIELD(icon_type));
  f.add(FIELD(url));
  f.add(FIELD(icon_data_byte));
}

void DescriptorMessage::_fields(FieldList& f) {
  f.add(FIELD(message_id), 8);
  f.add(FIELD(ISO_639_language_code));
  f.text(FIELD(text));
}

void DescriptorServiceRelocated::_fields(FieldList& f) {
  f.add(FIELD(old_original_network_id), 16);
  f.add(FIELD(old_transport_stream_id), 16);
  f.add(FIELD(old_service_id), 16);
}

void DescriptorURILinkage::_fields(FieldList& f) {
  f.add(FIELD(uri_linkage_type), 8);
  f.add(FIELD(uri));
  f.add(FIELD(min_polling_interval), 16);
  f.add(FIELD(private_data_byte));
}

void DescriptorTTMLSubtitling::_fields(FieldList& f) {
  f.add(FIELD(ISO_639_language_code));
  f.add(FIELD(subtitle_purpose), 6);
  f.add(FIELD(TTS_suitability), 2);
  f.add(FIELD(essential_font_usage_flag));
  f.add(FIELD(qualifier_present_flag));
  f.add(FIELD(dvb_ttml_profile));
  f.add(FIELD(qualifier), 32);
  f.add(FIELD(essential_font_id));
  f.text(FIELD(service_name));
}

}  // namespace sivane
