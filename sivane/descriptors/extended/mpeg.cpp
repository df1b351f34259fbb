// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/exact_body.h>
#include <sivane/descriptors/extended/mpeg.h>

namespace sivane {

namespace {

constexpr int format_by_identifier = 0xFF;
constexpr int application_format_by_identifier = 0xFFFF;

/// Behind seven reserved bits.
double read_time_base_value(Reader& r) {
  constexpr double low_bits = 4294967296.0;
  r.skip_bits(7);
  double const high = r.bits(1);
  return high * low_bits + r.u32();
}

/// The formats of a service of metadata, and its number.
template <class Descriptor>
void read_metadata_service(Reader& r, Descriptor& d) {
  d.metadata_application_format = r.u16();
  if (d.metadata_application_format == application_format_by_identifier) {
    d.metadata_application_format_identifier = r.u32();
  }
  d.metadata_format = r.u8();
  if (d.metadata_format == format_by_identifier) d.metadata_format_identifier = r.u32();
  d.metadata_service_id = r.u8();
}

}  // namespace

// MPEG-4_video_descriptor

DescriptorMPEG4Video::DescriptorMPEG4Video(DescriptorBytes d) : ExtendedDescriptor(d) {
  MPEG_4_visual_profile_and_level = exact_body(d).u8();
}

// content_labeling_descriptor

DescriptorContentLabeling::DescriptorContentLabeling(DescriptorBytes d) : ExtendedDescriptor(d) {
  constexpr int by_stream = 1, by_NPT = 2, first_with_data = 3, last_with_data = 7;
  Reader r = exact_body(d);
  metadata_application_format = r.u16();
  if (metadata_application_format == application_format_by_identifier) {
    metadata_application_format_identifier = r.u32();
  }
  content_reference_id_record_flag = r.flag();
  content_time_base_indicator = r.bits(4);
  r.skip_bits(3);
  if (content_reference_id_record_flag) content_reference_id = prefixed_bytes(r);
  if (content_time_base_indicator == by_stream || content_time_base_indicator == by_NPT) {
    content_time_base_value = read_time_base_value(r);
    metadata_time_base_value = read_time_base_value(r);
  }
  if (content_time_base_indicator == by_NPT) {
    r.skip_bits(1);
    contentId = r.bits(7);
  }
  if (content_time_base_indicator >= first_with_data && content_time_base_indicator <= last_with_data) {
    time_base_association_data = prefixed_bytes(r);
  }
  private_data_byte = r.rest();
}

// metadata_pointer_descriptor

DescriptorMetadataPointer::DescriptorMetadataPointer(DescriptorBytes d) : ExtendedDescriptor(d) {
  constexpr int other_stream = 1, no_stream = 3;
  Reader r = exact_body(d);
  read_metadata_service(r, *this);
  metadata_locator_record_flag = r.flag();
  MPEG_carriage_flags = r.bits(2);
  r.skip_bits(5);
  if (metadata_locator_record_flag) metadata_locator_record = prefixed_bytes(r);
  if (MPEG_carriage_flags != no_stream) program_number = r.u16();
  if (MPEG_carriage_flags == other_stream) {
    transport_stream_location = r.u16();
    transport_stream_id = r.u16();
  }
  private_data_byte = r.rest();
}

// metadata_descriptor

DescriptorMetadata::DescriptorMetadata(DescriptorBytes d) : ExtendedDescriptor(d) {
  enum : int { here = 1, identified = 3, in_service = 4, reserved_first = 5, reserved_last = 6 };
  Reader r = exact_body(d);
  read_metadata_service(r, *this);
  decoder_config_flags = r.bits(3);
  DSM_CC_flag = r.flag();
  r.skip_bits(4);
  if (DSM_CC_flag) service_identification = prefixed_bytes(r);
  switch (decoder_config_flags) {
    case here:
      decoder_config = prefixed_bytes(r);
      break;
    case identified:
      dec_config_identification = prefixed_bytes(r);
      break;
    case in_service:
      decoder_config_metadata_service_id = r.u8();
      break;
    case reserved_first:
    case reserved_last:
      reserved_data = prefixed_bytes(r);
      break;
    default:
      break;
  }
  private_data_byte = r.rest();
}

// AVC_video_descriptor

DescriptorAVCVideo::DescriptorAVCVideo(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  profile_idc = r.u8();
  constraint_set0_flag = r.flag();
  constraint_set1_flag = r.flag();
  constraint_set2_flag = r.flag();
  constraint_set3_flag = r.flag();
  constraint_set4_flag = r.flag();
  constraint_set5_flag = r.flag();
  AVC_compatible_flags = r.bits(2);
  level_idc = r.u8();
  AVC_still_present = r.flag();
  AVC_24_hour_picture_flag = r.flag();
  Frame_Packing_SEI_not_present_flag = r.flag();
}

// AVC_timing_and_HRD_descriptor

DescriptorAVCTimingAndHRD::DescriptorAVCTimingAndHRD(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  hrd_management_valid_flag = r.flag();
  r.skip_bits(6);
  picture_and_timing_info_present = r.flag();
  if (picture_and_timing_info_present) {
    is_90kHz = r.flag();
    r.skip_bits(7);
    if (!is_90kHz) {
      N = r.u32();
      K = r.u32();
    }
    num_units_in_tick = r.u32();
  }
  fixed_frame_rate_flag = r.flag();
  temporal_poc_flag = r.flag();
  picture_to_display_conversion_flag = r.flag();
}

// HEVC_video_descriptor

DescriptorHEVCVideo::DescriptorHEVCVideo(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  profile_space = r.bits(2);
  tier_flag = r.flag();
  profile_idc = r.bits(5);
  profile_compatibility_indication = r.u32();
  progressive_source_flag = r.flag();
  interlaced_source_flag = r.flag();
  non_packed_constraint_flag = r.flag();
  frame_only_constraint_flag = r.flag();
  copied_44bits_high = r.bits(12);
  copied_44bits_low = r.u32();
  level_idc = r.u8();
  temporal_layer_subset_flag = r.flag();
  HEVC_still_present_flag = r.flag();
  HEVC_24hr_picture_present_flag = r.flag();
  sub_pic_hrd_params_not_present_flag = r.flag();
  r.skip_bits(2);
  HDR_WCG_idc = r.bits(2);
  if (temporal_layer_subset_flag) temporal_layers = r.bytes(2);
}

// J2K_video_descriptor

DescriptorJ2KVideo::DescriptorJ2KVideo(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  extended_capability_flag = r.flag();
  profile_and_level = r.bits(15);
  horizontal_size = r.u32();
  vertical_size = r.u32();
  max_bit_rate = r.u32();
  max_buffer_size = r.u32();
  DEN_frame_rate = r.u16();
  NUM_frame_rate = r.u16();
  if (!extended_capability_flag) {
    color_specification = r.u8();
    still_mode = r.flag();
    interlaced_video = r.flag();
    r.skip_bits(6);
  }
  private_data_byte = r.rest();
}

// extension_descriptor

DescriptorMPEGExtension::DescriptorMPEGExtension(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  extension_descriptor_tag = r.u8();
  data = r.rest();
}

}  // namespace sivane
