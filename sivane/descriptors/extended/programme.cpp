// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/exact_body.h>
#include <sivane/descriptors/extended/programme.h>

namespace sivane {

// default_authority_descriptor, related_content_descriptor

DescriptorDefaultAuthority::DescriptorDefaultAuthority(DescriptorBytes d)
    : ExtendedDescriptor(d), default_authority(exact_body(d).rest_as_string()) {}

DescriptorRelatedContent::DescriptorRelatedContent(DescriptorBytes d) : ExtendedDescriptor(d) {
  exact_body(d);  // whose bytes must be there, as everywhere
}

// TVA_id_descriptor

DescriptorTVAId::DescriptorTVAId(DescriptorBytes d) : ExtendedDescriptor(d), ids(exact_body(d).walk<Id>()) {}

DescriptorTVAId::Id::Id(Reader& r) {
  TVA_id = r.u16();
  r.skip_bits(5);
  running_status = r.bits(3);
}

// content_identifier_descriptor

DescriptorContentIdentifier::DescriptorContentIdentifier(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  bool is_readable = true;
  while (is_readable && r.more()) is_readable = crids.emplace_back(r).crid_location <= 1;
}

DescriptorContentIdentifier::Crid::Crid(Reader& r) {
  constexpr int here = 0, in_table = 1;
  crid_type = r.bits(6);
  crid_location = r.bits(2);
  if (crid_location == here) crid = r.prefixed_string();
  if (crid_location == in_table) crid_ref = r.u16();
}

// XAIT_location_descriptor

DescriptorXAITLocation::DescriptorXAITLocation(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  xait_original_network_id = r.u16();
  xait_service_id = r.u16();
  xait_version_number = r.bits(5);
  xait_update_policy = r.bits(3);
}

// FTA_content_management_descriptor, scrambling_descriptor

DescriptorFTAContentManagement::DescriptorFTAContentManagement(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  user_defined = r.flag();
  r.skip_bits(3);
  do_not_scramble = r.flag();
  control_remote_access_over_internet = r.bits(2);
  do_not_apply_revocation = r.flag();
}

DescriptorScrambling::DescriptorScrambling(DescriptorBytes d) : ExtendedDescriptor(d) {
  scrambling_mode = exact_body(d).u8();
}

// image_icon_descriptor

DescriptorImageIcon::DescriptorImageIcon(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  descriptor_number = r.bits(4);
  last_descriptor_number = r.bits(4);
  r.skip_bits(5);
  icon_id = r.bits(3);
  if (descriptor_number == 0) {
    read_first_part(r);
  } else {
    icon_data_byte = prefixed_bytes(r);
  }
}

void DescriptorImageIcon::read_first_part(Reader& r) {
  constexpr int bytes_here = 0, by_url = 1;
  icon_transport_mode = r.bits(2);
  position_flag = r.flag();
  if (position_flag) {
    coordinate_system = r.bits(3);
    r.skip_bits(2);
    icon_horizontal_origin = r.bits(12);
    icon_vertical_origin = r.bits(12);
  } else {
    r.skip_bits(5);
  }
  icon_type = r.prefixed_string();
  if (icon_transport_mode == bytes_here) icon_data_byte = prefixed_bytes(r);
  if (icon_transport_mode == by_url) url = r.prefixed_string();
}

// message_descriptor

DescriptorMessage::DescriptorMessage(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  message_id = r.u8();
  r.code(ISO_639_language_code);
  text = r.rest_as_string();
}

// service_relocated_descriptor

DescriptorServiceRelocated::DescriptorServiceRelocated(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  old_original_network_id = r.u16();
  old_transport_stream_id = r.u16();
  old_service_id = r.u16();
}

// URI_linkage_descriptor

DescriptorURILinkage::DescriptorURILinkage(DescriptorBytes d) : ExtendedDescriptor(d) {
  constexpr int last_that_is_polled = 0x01;
  Reader r = extension_body(d);
  uri_linkage_type = r.u8();
  uri = r.prefixed_string();
  if (uri_linkage_type <= last_that_is_polled) min_polling_interval = r.u16();
  private_data_byte = r.rest();
}

// TTML_subtitling_descriptor

DescriptorTTMLSubtitling::DescriptorTTMLSubtitling(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  r.code(ISO_639_language_code);
  subtitle_purpose = r.bits(6);
  TTS_suitability = r.bits(2);
  essential_font_usage_flag = r.flag();
  qualifier_present_flag = r.flag();
  r.skip_bits(2);
  int const dvb_ttml_profile_count = r.bits(4);
  dvb_ttml_profile = r.bytes(dvb_ttml_profile_count);
  if (qualifier_present_flag) qualifier = r.u32();
  if (essential_font_usage_flag) {
    essential_font_id = prefixed_bytes(r);
    for (unsigned char& id : essential_font_id) id &= 0x7F;
  }
  service_name = r.prefixed_string();
}

}  // namespace sivane
