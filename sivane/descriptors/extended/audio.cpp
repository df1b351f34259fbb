// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/audio.h>
#include <sivane/descriptors/extended/exact_body.h>
#include <sivane/descriptors/value_text.h>

namespace sivane {

// enhanced_AC-3_descriptor

DescriptorEnhancedAC3::DescriptorEnhancedAC3(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  component_type_flag = r.flag();
  bsid_flag = r.flag();
  mainid_flag = r.flag();
  asvc_flag = r.flag();
  mixinfoexists = r.flag();
  substream1_flag = r.flag();
  substream2_flag = r.flag();
  substream3_flag = r.flag();
  if (component_type_flag) component_type = r.u8();
  if (bsid_flag) bsid = r.u8();
  if (mainid_flag) mainid = r.u8();
  if (asvc_flag) asvc = r.u8();
  if (substream1_flag) substream1 = r.u8();
  if (substream2_flag) substream2 = r.u8();
  if (substream3_flag) substream3 = r.u8();
  additional_info = r.rest();
}

// DTS_descriptor

DescriptorDTS::DescriptorDTS(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  sample_rate_code = r.bits(4);
  bit_rate_code = r.bits(6);
  nblks = r.bits(7);
  fsize = r.bits(14);
  surround_mode = r.bits(6);
  lfe_flag = r.flag();
  extended_surround_flag = r.bits(2);
  additional_info = r.rest();
}

// AAC_descriptor

DescriptorAAC::DescriptorAAC(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  profile_and_level = r.u8();
  has_flags = r.more();
  if (!has_flags) return;
  AAC_type_flag = r.flag();
  SAOC_DE_flag = r.flag();
  r.skip_bits(6);
  if (AAC_type_flag) AAC_type = r.u8();
  additional_info = r.rest();
}

// supplementary_audio_descriptor

DescriptorSupplementaryAudio::DescriptorSupplementaryAudio(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  mix_type = r.flag();
  editorial_classification = r.bits(5);
  r.skip_bits(1);
  language_code_present = r.flag();
  if (language_code_present) r.code(ISO_639_language_code);
  private_data_byte = r.rest();
}

char const* DescriptorSupplementaryAudio::get_editorial_classification_text(int classification) {
  static constexpr char const* texts[] = {"main audio", "audio description", "clean audio",
                                          "spoken subtitles"};
  return value_text(texts, classification, "<unknown>");
}

// AC-4_descriptor

DescriptorAC4::DescriptorAC4(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  ac4_config_flag = r.flag();
  ac4_toc_flag = r.flag();
  r.skip_bits(6);
  if (ac4_config_flag) {
    ac4_dialog_enhancement_enabled = r.flag();
    ac4_channel_mode = r.bits(2);
    r.skip_bits(5);
  }
  if (ac4_toc_flag) ac4_dsi_byte = prefixed_bytes(r);
  additional_info = r.rest();
}

// audio_preselection_descriptor

DescriptorAudioPreselection::DescriptorAudioPreselection(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  int const num_preselections = r.bits(5);
  r.skip_bits(3);
  for (int i = 0; i < num_preselections; ++i) preselections.emplace_back(r);
}

DescriptorAudioPreselection::Preselection::Preselection(Reader& r) {
  preselection_id = r.bits(5);
  audio_rendering_indication = r.bits(3);
  audio_description = r.flag();
  spoken_subtitles = r.flag();
  dialogue_enhancement = r.flag();
  interactivity_enabled = r.flag();
  language_code_present = r.flag();
  text_label_present = r.flag();
  multi_stream_info_present = r.flag();
  future_extension = r.flag();
  if (language_code_present) r.code(ISO_639_language_code);
  if (text_label_present) message_id = r.u8();
  if (multi_stream_info_present) {
    int const num_aux_components = r.bits(3);
    r.skip_bits(5);
    component_tag = r.bytes(num_aux_components);
  }
  if (future_extension) {
    r.skip_bits(3);
    int const future_extension_length = r.bits(5);
    extension_byte = r.bytes(future_extension_length);
  }
}

// MPEG-4_audio_descriptor, MPEG-2_AAC_audio_descriptor

DescriptorMPEG4Audio::DescriptorMPEG4Audio(DescriptorBytes d) : ExtendedDescriptor(d) {
  MPEG_4_audio_profile_and_level = exact_body(d).u8();
}

DescriptorMPEG2AACAudio::DescriptorMPEG2AACAudio(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  MPEG_2_AAC_profile = r.u8();
  MPEG_2_AAC_channel_configuration = r.u8();
  MPEG_2_AAC_additional_information = r.u8();
}

}  // namespace sivane
