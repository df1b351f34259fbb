// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/mpeg_systems.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorVideoStream::_fields(FieldList& f) {
  f.add(FIELD(multiple_frame_rate_flag));
  f.add(FIELD(frame_rate_code), 4);
  f.add(FIELD(MPEG_1_only_flag));
  f.add(FIELD(constrained_parameter_flag));
  f.add(FIELD(still_picture_flag));
  f.add(FIELD(profile_and_level_indication), 8);
  f.add(FIELD(chroma_format), 2);
  f.add(FIELD(frame_rate_extension_flag));
  f.add(FIELD(reserved), 5);
}

void DescriptorAudioStream::_fields(FieldList& f) {
  f.add(FIELD(free_format_flag), 1);
  f.add(FIELD(ID), 1);
  f.add(FIELD(layer), 2);
  f.add(FIELD(variable_rate_audio_indicator), 1);
}

void DescriptorHierarchy::_fields(FieldList& f) {
  f.add(FIELD(hierarchy_type), 4);
  f.add(FIELD(hierarchy_layer_index), 6);
  f.add(FIELD(hierarchy_embedded_layer_index), 6);
  f.add(FIELD(hierarchy_channel), 6);
}

void DescriptorRegistration::_fields(FieldList& f) {
  f.add(FIELD(format_identifier), 32);
  f.add(FIELD(additional_identification_info));
}

void DescriptorDataStreamAlignment::_fields(FieldList& f) { f.add(FIELD(alignment_type), 8); }

void DescriptorTargetBackgroundGrid::_fields(FieldList& f) {
  f.add(FIELD(horizontal_size), 14);
  f.add(FIELD(vertical_size), 14);
  f.add(FIELD(aspect_ratio_information), 4);
}

void DescriptorVideoWindow::_fields(FieldList& f) {
  f.add(FIELD(horizonal_offset), 14);
  f.add(FIELD(vertical_offset), 14);
  f.add(FIELD(window_priority), 4);
}

void DescriptorCa::_fields(FieldList& f) {
  f.add(FIELD(sys_id), 16);
  f.add(FIELD(pid), 13);
  f.add(FIELD(private_bytes));
}

RECORD_FIELDS(DescriptorISO639Language::ISO639Lang) {
  f.add(FIELD(audio_type), 8);
  f.add(FIELD(ISO_639_language_code));
}

void DescriptorISO639Language::_fields(FieldList& f) { f.list(FIELD(language_vector), u"language"); }

void DescriptorSystemClock::_fields(FieldList& f) {
  f.add(FIELD(external_clock_reference_indicator), 1);
  f.add(FIELD(clock_acuracy_integer), 6);
  f.add(FIELD(clock_acuracy_exponent), 3);
}

void DescriptorMultiplexBufferUtilization::_fields(FieldList& f) {
  f.add(FIELD(bound_valid_flag), 1);
  f.add(FIELD(LTW_offset_lower_bound), 15);
  f.add(FIELD(LTW_offset_upper_bound), 15);
}

void DescriptorCopyright::_fields(FieldList& f) {
  f.add(FIELD(copyright_identifier), 32);
  f.add(FIELD(additional_copyright_info));
}

void DescriptorMaximumBitrate::_fields(FieldList& f) { f.add(FIELD(maximum_bitrate), 22); }

void DescriptorPrivateDataIndicator::_fields(FieldList& f) { f.add(FIELD(private_data_indicator), 32); }

void DescriptorSmoothingBuffer::_fields(FieldList& f) {
  f.add(FIELD(sb_leak_rate), 22);
  f.add(FIELD(sb_size), 22);
}

void DescriptorSTD::_fields(FieldList& f) { f.add(FIELD(leak_valid_flag), 1); }

void DescriptorIBP::_fields(FieldList& f) {
  f.add(FIELD(closed_gop_flag), 1);
  f.add(FIELD(identical_gop_flag), 1);
  f.add(FIELD(max_gop_length), 14);
}

void DescriptorCarouselId::_fields(FieldList& f) {
  f.add(FIELD(carousel_id), 32);
  f.add(FIELD(formatid), 8);
  f.add(FIELD(moduleversion), 8);
  f.add(FIELD(moduleid), 16);
  f.add(FIELD(blocksize), 16);
  f.add(FIELD(modulesize), 32);
  f.add(FIELD(compressionmethod), 8);
  f.add(FIELD(originalsize), 32);
  f.add(FIELD(timeout), 8);
  f.add(FIELD(objectkeylength), 8);
  f.add(FIELD(private_data_byte));
  f.add(FIELD(objectkeydata));
}

void DescriptorAssociationTag::_fields(FieldList& f) {
  f.add(FIELD(association_tag), 16);
  f.add(FIELD(use), 16);
  f.add(FIELD(selector_length), 8);
  f.add(FIELD(transaction_id), 32);
  f.add(FIELD(timeout), 32);
  f.add(FIELD(selector_byte));
  f.add(FIELD(private_data_byte));
}

}  // namespace sivane
