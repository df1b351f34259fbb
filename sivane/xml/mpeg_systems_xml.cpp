// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/mpeg_systems.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorVideoStream& d) {
  ar.attr(u"multiple_frame_rate_flag", d.multiple_frame_rate_flag);
  ar.attr(u"frame_rate_code", d.frame_rate_code);
  ar.attr(u"MPEG_1_only_flag", d.MPEG_1_only_flag);
  ar.attr(u"constrained_parameter_flag", d.constrained_parameter_flag);
  ar.attr(u"still_picture_flag", d.still_picture_flag);
  ar.attr(u"profile_and_level_indication", d.profile_and_level_indication);
  ar.attr(u"chroma_format", d.chroma_format);
  ar.attr(u"frame_rate_extension_flag", d.frame_rate_extension_flag);
  ar.attr(u"reserved", d.reserved);
}
SIVANE_XML(DescriptorVideoStream)

static void fields(Archive& ar, DescriptorAudioStream& d) {
  ar.attr(u"free_format_flag", d.free_format_flag);
  ar.attr(u"ID", d.ID);
  ar.attr(u"layer", d.layer);
  ar.attr(u"variable_rate_audio_indicator", d.variable_rate_audio_indicator);
}
SIVANE_XML(DescriptorAudioStream)

static void fields(Archive& ar, DescriptorHierarchy& d) {
  ar.attr(u"hierarchy_type", d.hierarchy_type);
  ar.attr(u"hierarchy_layer_index", d.hierarchy_layer_index);
  ar.attr(u"hierarchy_embedded_layer_index", d.hierarchy_embedded_layer_index);
  ar.attr(u"hierarchy_channel", d.hierarchy_channel);
}
SIVANE_XML(DescriptorHierarchy)

static void fields(Archive& ar, DescriptorRegistration& d) {
  ar.attr(u"format_identifier", d.format_identifier);
  ar.attr(u"additional_identification_info", d.additional_identification_info);
}
SIVANE_XML(DescriptorRegistration)

static void fields(Archive& ar, DescriptorDataStreamAlignment& d) {
  ar.attr(u"alignment_type", d.alignment_type);
}
SIVANE_XML(DescriptorDataStreamAlignment)

static void fields(Archive& ar, DescriptorTargetBackgroundGrid& d) {
  ar.attr(u"horizontal_size", d.horizontal_size);
  ar.attr(u"vertical_size", d.vertical_size);
  ar.attr(u"aspect_ratio_information", d.aspect_ratio_information);
}
SIVANE_XML(DescriptorTargetBackgroundGrid)

static void fields(Archive& ar, DescriptorVideoWindow& d) {
  ar.attr(u"horizonal_offset", d.horizonal_offset);
  ar.attr(u"vertical_offset", d.vertical_offset);
  ar.attr(u"window_priority", d.window_priority);
}
SIVANE_XML(DescriptorVideoWindow)

static void fields(Archive& ar, DescriptorCa& d) {
  ar.attr(u"sys_id", d.sys_id);
  ar.attr(u"pid", d.pid);
  ar.attr(u"private_bytes", d.private_bytes);
}
SIVANE_XML(DescriptorCa)

static void fields(Archive& ar, DescriptorISO639Language::ISO639Lang& r) {
  ar.attr(u"audio_type", r.audio_type);
  ar.attr(u"ISO_639_language_code", r.ISO_639_language_code);
}
SIVANE_XML_RECORD(DescriptorISO639Language::ISO639Lang)

static void fields(Archive& ar, DescriptorISO639Language& d) {
  ar.list(u"language_vector", u"language", d.language_vector);
}
SIVANE_XML(DescriptorISO639Language)

static void fields(Archive& ar, DescriptorSystemClock& d) {
  ar.attr(u"external_clock_reference_indicator", d.external_clock_reference_indicator);
  ar.attr(u"clock_acuracy_integer", d.clock_acuracy_integer);
  ar.attr(u"clock_acuracy_exponent", d.clock_acuracy_exponent);
}
SIVANE_XML(DescriptorSystemClock)

static void fields(Archive& ar, DescriptorMultiplexBufferUtilization& d) {
  ar.attr(u"bound_valid_flag", d.bound_valid_flag);
  ar.attr(u"LTW_offset_lower_bound", d.LTW_offset_lower_bound);
  ar.attr(u"LTW_offset_upper_bound", d.LTW_offset_upper_bound);
}
SIVANE_XML(DescriptorMultiplexBufferUtilization)

static void fields(Archive& ar, DescriptorCopyright& d) {
  ar.attr(u"copyright_identifier", d.copyright_identifier);
  ar.attr(u"additional_copyright_info", d.additional_copyright_info);
}
SIVANE_XML(DescriptorCopyright)

static void fields(Archive& ar, DescriptorMaximumBitrate& d) {
  ar.attr(u"maximum_bitrate", d.maximum_bitrate);
}
SIVANE_XML(DescriptorMaximumBitrate)

static void fields(Archive& ar, DescriptorPrivateDataIndicator& d) {
  ar.attr(u"private_data_indicator", d.private_data_indicator);
}
SIVANE_XML(DescriptorPrivateDataIndicator)

static void fields(Archive& ar, DescriptorSmoothingBuffer& d) {
  ar.attr(u"sb_leak_rate", d.sb_leak_rate);
  ar.attr(u"sb_size", d.sb_size);
}
SIVANE_XML(DescriptorSmoothingBuffer)

static void fields(Archive& ar, DescriptorSTD& d) { ar.attr(u"leak_valid_flag", d.leak_valid_flag); }
SIVANE_XML(DescriptorSTD)

static void fields(Archive& ar, DescriptorIBP& d) {
  ar.attr(u"closed_gop_flag", d.closed_gop_flag);
  ar.attr(u"identical_gop_flag", d.identical_gop_flag);
  ar.attr(u"max_gop_length", d.max_gop_length);
}
SIVANE_XML(DescriptorIBP)

static void fields(Archive& ar, DescriptorCarouselId& d) {
  ar.attr(u"carousel_id", d.carousel_id);
  ar.attr(u"formatid", d.formatid);
  ar.attr(u"moduleversion", d.moduleversion);
  ar.attr(u"moduleid", d.moduleid);
  ar.attr(u"blocksize", d.blocksize);
  ar.attr(u"modulesize", d.modulesize);
  ar.attr(u"compressionmethod", d.compressionmethod);
  ar.attr(u"originalsize", d.originalsize);
  ar.attr(u"timeout", d.timeout);
  ar.attr(u"objectkeylength", d.objectkeylength);
  ar.attr(u"private_data_byte", d.private_data_byte);
  ar.attr(u"objectkeydata", d.objectkeydata);
}
SIVANE_XML(DescriptorCarouselId)

static void fields(Archive& ar, DescriptorAssociationTag& d) {
  ar.attr(u"association_tag", d.association_tag);
  ar.attr(u"use", d.use);
  ar.attr(u"selector_length", d.selector_length);
  ar.attr(u"transaction_id", d.transaction_id);
  ar.attr(u"timeout", d.timeout);
  ar.attr(u"selector_byte", d.selector_byte);
  ar.attr(u"private_data_byte", d.private_data_byte);
}
SIVANE_XML(DescriptorAssociationTag)

}  // namespace sivane
