// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/mpeg.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorMPEG4Video::_fields(FieldList& f) { f.add(FIELD(MPEG_4_visual_profile_and_level), 8); }

void DescriptorContentLabeling::_fields(FieldList& f) {
  f.add(FIELD(metadata_application_format), 16);
  f.add(FIELD(metadata_application_format_identifier), 32);
  f.add(FIELD(content_reference_id_record_flag));
  f.add(FIELD(content_time_base_indicator), 4);
  f.add(FIELD(content_reference_id));
  f.add(FIELD(content_time_base_value));
  f.add(FIELD(metadata_time_base_value));
  f.add(FIELD(contentId), 7);
  f.add(FIELD(time_base_association_data));
  f.add(FIELD(private_data_byte));
}

void DescriptorMetadataPointer::_fields(FieldList& f) {
  f.add(FIELD(metadata_application_format), 16);
  f.add(FIELD(metadata_application_format_identifier), 32);
  f.add(FIELD(metadata_format), 8);
  f.add(FIELD(metadata_format_identifier), 32);
  f.add(FIELD(metadata_service_id), 8);
  f.add(FIELD(metadata_locator_record_flag));
  f.add(FIELD(MPEG_carriage_flags), 2);
  f.add(FIELD(metadata_locator_record));
  f.add(FIELD(program_number), 16);
  f.add(FIELD(transport_stream_location), 16);
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(private_data_byte));
}

void DescriptorMetadata::_fields(FieldList& f) {
  f.add(FIELD(metadata_application_format), 16);
  f.add(FIELD(metadata_application_format_identifier), 32);
  f.add(FIELD(metadata_format), 8);
  f.add(FIELD(metadata_format_identifier), 32);
  f.add(FIELD(metadata_service_id), 8);
  f.add(FIELD(decoder_config_flags), 3);
  f.add(FIELD(DSM_CC_flag));
  f.add(FIELD(service_identification));
  f.add(FIELD(decoder_config));
  f.add(FIELD(dec_config_identification));
  f.add(FIELD(decoder_config_metadata_service_id), 8);
  f.add(FIELD(reserved_data));
  f.add(FIELD(private_data_byte));
}

void DescriptorAVCVideo::_fields(FieldList& f) {
  f.add(FIELD(profile_idc), 8);
  f.add(FIELD(constraint_set0_flag));
  f.add(FIELD(constraint_set1_flag));
  f.add(FIELD(constraint_set2_flag));
  f.add(FIELD(constraint_set3_flag));
  f.add(FIELD(constraint_set4_flag));
  f.add(FIELD(constraint_set5_flag));
  f.add(FIELD(AVC_compatible_flags), 2);
  f.add(FIELD(level_idc), 8);
  f.add(FIELD(AVC_still_present));
  f.add(FIELD(AVC_24_hour_picture_flag));
  f.add(FIELD(Frame_Packing_SEI_not_present_flag));
}

void DescriptorAVCTimingAndHRD::_fields(FieldList& f) {
  f.add(FIELD(hrd_management_valid_flag));
  f.add(FIELD(picture_and_timing_info_present));
  f.add(FIELD(is_90kHz));
  f.add(FIELD(N), 32);
  f.add(FIELD(K), 32);
  f.add(FIELD(num_units_in_tick), 32);
  f.add(FIELD(fixed_frame_rate_flag));
  f.add(FIELD(temporal_poc_flag));
  f.add(FIELD(picture_to_display_conversion_flag));
}

void DescriptorHEVCVideo::_fields(FieldList& f) {
  f.add(FIELD(profile_space), 2);
  f.add(FIELD(tier_flag));
  f.add(FIELD(profile_idc), 5);
  f.add(FIELD(profile_compatibility_indication), 32);
  f.add(FIELD(progressive_source_flag));
  f.add(FIELD(interlaced_source_flag));
  f.add(FIELD(non_packed_constraint_flag));
  f.add(FIELD(frame_only_constraint_flag));
  f.add(FIELD(copied_44bits_high), 12);
  f.add(FIELD(copied_44bits_low), 32);
  f.add(FIELD(level_idc), 8);
  f.add(FIELD(temporal_layer_subset_flag));
  f.add(FIELD(HEVC_still_present_flag));
  f.add(FIELD(HEVC_24hr_picture_present_flag));
  f.add(FIELD(sub_pic_hrd_params_not_present_flag));
  f.add(FIELD(HDR_WCG_idc), 2);
  f.add(FIELD(temporal_layers));
}

void DescriptorJ2KVideo::_fields(FieldList& f) {
  f.add(FIELD(extended_capability_flag));
  f.add(FIELD(profile_and_level), 15);
  f.add(FIELD(horizontal_size), 32);
  f.add(FIELD(vertical_size), 32);
  f.add(FIELD(max_bit_rate), 32);
  f.add(FIELD(max_buffer_size), 32);
  f.add(FIELD(DEN_frame_rate), 16);
  f.add(FIELD(NUM_frame_rate), 16);
  f.add(FIELD(color_specification), 8);
  f.add(FIELD(still_mode));
  f.add(FIELD(interlaced_video));
  f.add(FIELD(private_data_byte));
}

void DescriptorMPEGExtension::_fields(FieldList& f) {
  f.add(FIELD(extension_descriptor_tag), 8);
  f.add(FIELD(data));
}

}  // namespace sivane
