// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Sound (ETSI EN 300 468 V1.17.1, 6.4 and annexes D, G and H; ISO/IEC 13818-1:2023, 2.6).
#pragma once

#include <sivane/descriptors/extended/extended_descriptor.h>

#include <vector>

namespace sivane {

/// Enhanced AC-3 sound (EN 300 468, annex D.5). A field is there where its flag is set.
class SIVANE_API DescriptorEnhancedAC3 final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorEnhancedAC3)
  void _reset() override { additional_info.clear(); }

  bool component_type_flag = false;            ///< 1 bit
  bool bsid_flag = false;                      ///< 1 bit
  bool mainid_flag = false;                    ///< 1 bit
  bool asvc_flag = false;                      ///< 1 bit
  bool mixinfoexists = false;                  ///< 1 bit
  bool substream1_flag = false;                ///< 1 bit
  bool substream2_flag = false;                ///< 1 bit
  bool substream3_flag = false;                ///< 1 bit
  int component_type = 0;                      ///< 8 bits
  int bsid = 0;                                ///< 8 bits
  int mainid = 0;                              ///< 8 bits
  int asvc = 0;                                ///< 8 bits
  int substream1 = 0;                          ///< 8 bits
  int substream2 = 0;                          ///< 8 bits
  int substream3 = 0;                          ///< 8 bits
  std::vector<unsigned char> additional_info;  ///< the rest
};

/// DTS sound (EN 300 468, annex G.2).
class SIVANE_API DescriptorDTS final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorDTS)
  void _reset() override { additional_info.clear(); }

  int sample_rate_code = 0;                    ///< 4 bits
  int bit_rate_code = 0;                       ///< 6 bits
  int nblks = 0;                               ///< 7 bits
  int fsize = 0;                               ///< 14 bits
  int surround_mode = 0;                       ///< 6 bits
  bool lfe_flag = false;                       ///< 1 bit
  int extended_surround_flag = 0;              ///< 2 bits
  std::vector<unsigned char> additional_info;  ///< the rest
};

/// MPEG-4 AAC sound of DVB (EN 300 468, annex H.2).
class SIVANE_API DescriptorAAC final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorAAC)
  void _reset() override { additional_info.clear(); }

  int profile_and_level = 0;                   ///< 8 bits, as in DescriptorMPEG4Audio
  bool has_flags = false;                      ///< no field: whether anything below is given
  bool AAC_type_flag = false;                  ///< 1 bit; whether the type is given
  bool SAOC_DE_flag = false;                   ///< 1 bit
  int AAC_type = 0;                            ///< 8 bits, a component_type with stream_content 6
  std::vector<unsigned char> additional_info;  ///< the rest
};

/// What sound is for that is mixed in, or heard in place of the main one (EN 300 468, 6.4).
class SIVANE_API DescriptorSupplementaryAudio final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorSupplementaryAudio)
  void _reset() override { private_data_byte.clear(); }
  /// The text of an `editorial_classification` of 5 bits.
  static char const* get_editorial_classification_text(int classification);

  bool mix_type = false;                         ///< 1 bit; 1 complete by itself
  int editorial_classification = 0;              ///< 5 bits
  bool language_code_present = false;            ///< 1 bit
  char ISO_639_language_code[4] = {};            ///< three characters and a terminating zero
  std::vector<unsigned char> private_data_byte;  ///< the rest
};

/// AC-4 sound (EN 300 468, annex D.7).
class SIVANE_API DescriptorAC4 final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorAC4)
  void _reset() override {
    ac4_dsi_byte.clear();
    additional_info.clear();
  }

  bool ac4_config_flag = false;                 ///< 1 bit; whether the next two are given
  bool ac4_toc_flag = false;                    ///< 1 bit; whether the table of contents is
  bool ac4_dialog_enhancement_enabled = false;  ///< 1 bit
  int ac4_channel_mode = 0;                     ///< 2 bits
  std::vector<unsigned char> ac4_dsi_byte;      ///< the table of contents, with a length of 8 bits
  std::vector<unsigned char> additional_info;   ///< the rest
};

/// Ways to hear the sound of next generation audio (EN 300 468, 6.4).
class SIVANE_API DescriptorAudioPreselection final : public ExtendedDescriptor {
 public:
  /// One way.
  class SIVANE_API Preselection {
   public:
    SIVANE_RECORD(Preselection)

    int preselection_id = 0;                    ///< 5 bits
    int audio_rendering_indication = 0;         ///< 3 bits
    bool audio_description = false;             ///< 1 bit
    bool spoken_subtitles = false;              ///< 1 bit
    bool dialogue_enhancement = false;          ///< 1 bit
    bool interactivity_enabled = false;         ///< 1 bit
    bool language_code_present = false;         ///< 1 bit
    bool text_label_present = false;            ///< 1 bit; whether a message id is given
    bool multi_stream_info_present = false;     ///< 1 bit; whether components are given
    bool future_extension = false;              ///< 1 bit; whether bytes of it are given
    char ISO_639_language_code[4] = {};         ///< three characters and a terminating zero
    int message_id = 0;                         ///< 8 bits, of a DescriptorMessage
    std::vector<unsigned char> component_tag;   ///< 8 bits each, at most 7
    std::vector<unsigned char> extension_byte;  ///< of the future, at most 31
  };

  SIVANE_DESCRIPTOR(DescriptorAudioPreselection)
  void _reset() override { preselections.clear(); }

  std::vector<Preselection> preselections;  ///< as many as a count of 5 bits says
};

/// MPEG-4 sound (ISO/IEC 13818-1, 2.6.38).
class SIVANE_API DescriptorMPEG4Audio final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMPEG4Audio)

  int MPEG_4_audio_profile_and_level = 0;  ///< 8 bits
};

/// MPEG-2 AAC sound (ISO/IEC 13818-1, 2.6.68).
class SIVANE_API DescriptorMPEG2AACAudio final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMPEG2AACAudio)

  int MPEG_2_AAC_profile = 0;                 ///< 8 bits
  int MPEG_2_AAC_channel_configuration = 0;   ///< 8 bits
  int MPEG_2_AAC_additional_information = 0;  ///< 8 bits
};

}  // namespace sivane
