// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/audio.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorEnhancedAC3::_fields(FieldList& f) {
  f.add(FIELD(component_type_flag));
  f.add(FIELD(bsid_flag));
  f.add(FIELD(mainid_flag));
  f.add(FIELD(asvc_flag));
  f.add(FIELD(mixinfoexists));
  f.add(FIELD(substream1_flag));
  f.add(FIELD(substream2_flag));
  f.add(FIELD(substream3_flag));
  f.add(FIELD(component_type), 8);
  f.add(FIELD(bsid), 8);
  f.add(FIELD(mainid), 8);
  f.add(FIELD(asvc), 8);
  f.add(FIELD(substream1), 8);
  f.add(FIELD(substream2), 8);
  f.add(FIELD(substream3), 8);
  f.add(FIELD(additional_info));
}

void DescriptorDTS::_fields(FieldList& f) {
  f.add(FIELD(sample_rate_code), 4);
  f.add(FIELD(bit_rate_code), 6);
  f.add(FIELD(nblks), 7);
  f.add(FIELD(fsize), 14);
  f.add(FIELD(surround_mode), 6);
  f.add(FIELD(lfe_flag));
  f.add(FIELD(extended_surround_flag), 2);
  f.add(FIELD(additional_info));
}

void DescriptorAAC::_fields(FieldList& f) {
  f.add(FIELD(profile_and_level), 8);
  f.add(FIELD(has_flags));
  f.add(FIELD(AAC_type_flag));
  f.add(FIELD(SAOC_DE_flag));
  f.add(FIELD(AAC_type), 8);
  f.add(FIELD(additional_info));
}

void DescriptorSupplementaryAudio::_fields(FieldList& f) {
  f.add(FIELD(mix_type));
  f.add(FIELD(editorial_classification), 5);
  f.add(FIELD(language_code_present));
  f.add(FIELD(ISO_639_language_code));
  f.add(FIELD(private_data_byte));
}

void DescriptorAC4::_fields(FieldList& f) {
  f.add(FIELD(ac4_config_flag));
  f.add(FIELD(ac4_toc_flag));
  f.add(FIELD(ac4_dialog_enhancement_enabled));
  f.add(FIELD(ac4_channel_mode), 2);
  f.add(FIELD(ac4_dsi_byte));
  f.add(FIELD(additional_info));
}

RECORD_FIELDS(DescriptorAudioPreselection::Preselection) {
  f.add(FIELD(preselection_id), 5);
  f.add(FIELD(audio_rendering_indication), 3);
  f.add(FIELD(audio_description));
  f.add(FIELD(spoken_subtitles));
  f.add(FIELD(dialogue_enhancement));
  f.add(FIELD(interactivity_enabled));
  f.add(FIELD(language_code_present));
  f.add(FIELD(text_label_present));
  f.add(FIELD(multi_stream_info_present));
  f.add(FIELD(future_extension));
  f.add(FIELD(ISO_639_language_code));
  f.add(FIELD(message_id), 8);
  f.add(FIELD(component_tag));
  f.add(FIELD(extension_byte));
}

void DescriptorAudioPreselection::_fields(FieldList& f) { f.list(FIELD(preselections), u"preselection"); }

void DescriptorMPEG4Audio::_fields(FieldList& f) { f.add(FIELD(MPEG_4_audio_profile_and_level), 8); }

void DescriptorMPEG2AACAudio::_fields(FieldList& f) {
  f.add(FIELD(MPEG_2_AAC_profile), 8);
  f.add(FIELD(MPEG_2_AAC_channel_configuration), 8);
  f.add(FIELD(MPEG_2_AAC_additional_information), 8);
}

}  // namespace sivane
