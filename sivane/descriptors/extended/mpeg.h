// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Pictures and metadata of MPEG (ISO/IEC 13818-1:2023, 2.6).
#pragma once

#include <sivane/descriptors/extended/extended_descriptor.h>

#include <vector>

namespace sivane {

/// MPEG-4 pictures (2.6.36).
class SIVANE_API DescriptorMPEG4Video final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMPEG4Video)

  int MPEG_4_visual_profile_and_level = 0;  ///< 8 bits
};

/// What a content is called elsewhere, and how its times relate to the stream's (2.6.56).
class SIVANE_API DescriptorContentLabeling final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorContentLabeling)
  void _reset() override {
    content_reference_id.clear();
    time_base_association_data.clear();
    private_data_byte.clear();
  }

  int metadata_application_format = 0;                      ///< 16 bits; 0xFFFF has an identifier
  unsigned int metadata_application_format_identifier = 0;  ///< 32 bits
  bool content_reference_id_record_flag = false;            ///< 1 bit; whether a record is given
  int content_time_base_indicator = 0;                      ///< 4 bits
  std::vector<unsigned char> content_reference_id;          ///< with a length of 8 bits
  double content_time_base_value = 0;                       ///< 33 bits, a whole number; indicator 1 or 2
  double metadata_time_base_value = 0;                      ///< 33 bits, a whole number; indicator 1 or 2
  int contentId = 0;                                        ///< 7 bits, indicator 2
  std::vector<unsigned char> time_base_association_data;    ///< with a length of 8 bits; indicator 3 to 7
  std::vector<unsigned char> private_data_byte;             ///< the rest
};

/// Where a service of metadata is (2.6.58).
class SIVANE_API DescriptorMetadataPointer final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMetadataPointer)
  void _reset() override {
    metadata_locator_record.clear();
    private_data_byte.clear();
  }

  int metadata_application_format = 0;                      ///< 16 bits; 0xFFFF has an identifier
  unsigned int metadata_application_format_identifier = 0;  ///< 32 bits
  int metadata_format = 0;                                  ///< 8 bits; 0xFF has an identifier
  unsigned int metadata_format_identifier = 0;              ///< 32 bits
  int metadata_service_id = 0;                              ///< 8 bits
  bool metadata_locator_record_flag = false;                ///< 1 bit; whether a record is given
  int MPEG_carriage_flags = 0;                              ///< 2 bits; 3 is no MPEG stream
  std::vector<unsigned char> metadata_locator_record;       ///< with a length of 8 bits
  int program_number = 0;                                   ///< 16 bits, carriage 0 to 2
  int transport_stream_location = 0;                        ///< 16 bits, carriage 1
  int transport_stream_id = 0;                              ///< 16 bits, carriage 1
  std::vector<unsigned char> private_data_byte;             ///< the rest
};

/// A service of metadata (2.6.60).
class SIVANE_API DescriptorMetadata final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMetadata)
  void _reset() override {
    service_identification.clear();
    decoder_config.clear();
    dec_config_identification.clear();
    reserved_data.clear();
    private_data_byte.clear();
  }

  int metadata_application_format = 0;                      ///< 16 bits; 0xFFFF has an identifier
  unsigned int metadata_application_format_identifier = 0;  ///< 32 bits
  int metadata_format = 0;                                  ///< 8 bits; 0xFF has an identifier
  unsigned int metadata_format_identifier = 0;              ///< 32 bits
  int metadata_service_id = 0;                              ///< 8 bits
  int decoder_config_flags = 0;                             ///< 3 bits
  bool DSM_CC_flag = false;                                 ///< 1 bit; whether a service of DSM-CC is given
  std::vector<unsigned char> service_identification;        ///< with a length of 8 bits
  std::vector<unsigned char> decoder_config;                ///< with a length of 8 bits; flags 1
  std::vector<unsigned char> dec_config_identification;     ///< with a length of 8 bits; flags 3
  int decoder_config_metadata_service_id = 0;               ///< 8 bits, flags 4
  std::vector<unsigned char> reserved_data;                 ///< with a length of 8 bits; flags 5 and 6
  std::vector<unsigned char> private_data_byte;             ///< the rest
};

/// AVC pictures (2.6.64).
class SIVANE_API DescriptorAVCVideo final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorAVCVideo)

  int profile_idc = 0;                              ///< 8 bits
  bool constraint_set0_flag = false;                ///< 1 bit
  bool constraint_set1_flag = false;                ///< 1 bit
  bool constraint_set2_flag = false;                ///< 1 bit
  bool constraint_set3_flag = false;                ///< 1 bit
  bool constraint_set4_flag = false;                ///< 1 bit
  bool constraint_set5_flag = false;                ///< 1 bit
  int AVC_compatible_flags = 0;                     ///< 2 bits
  int level_idc = 0;                                ///< 8 bits
  bool AVC_still_present = false;                   ///< 1 bit
  bool AVC_24_hour_picture_flag = false;            ///< 1 bit
  bool Frame_Packing_SEI_not_present_flag = false;  ///< 1 bit
};

/// Times and buffers of AVC pictures (2.6.66).
class SIVANE_API DescriptorAVCTimingAndHRD final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorAVCTimingAndHRD)

  bool hrd_management_valid_flag = false;           ///< 1 bit
  bool picture_and_timing_info_present = false;     ///< 1 bit; whether what follows up to the ticks is given
  bool is_90kHz = false;                            ///< 90kHz_flag, 1 bit; 0 gives N and K
  unsigned int N = 0;                               ///< 32 bits
  unsigned int K = 0;                               ///< 32 bits; the clock is 27 MHz * N / K
  unsigned int num_units_in_tick = 0;               ///< 32 bits
  bool fixed_frame_rate_flag = false;               ///< 1 bit
  bool temporal_poc_flag = false;                   ///< 1 bit
  bool picture_to_display_conversion_flag = false;  ///< 1 bit
};

/// HEVC pictures (2.6.95).
class SIVANE_API DescriptorHEVCVideo final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorHEVCVideo)
  void _reset() override { temporal_layers.clear(); }

  int profile_space = 0;                              ///< 2 bits
  bool tier_flag = false;                             ///< 1 bit
  int profile_idc = 0;                                ///< 5 bits
  unsigned int profile_compatibility_indication = 0;  ///< 32 bits
  bool progressive_source_flag = false;               ///< 1 bit
  bool interlaced_source_flag = false;                ///< 1 bit
  bool non_packed_constraint_flag = false;            ///< 1 bit
  bool frame_only_constraint_flag = false;            ///< 1 bit
  int copied_44bits_high = 0;                         ///< the first 12 of 44 bits
  unsigned int copied_44bits_low = 0;                 ///< the other 32 bits
  int level_idc = 0;                                  ///< 8 bits
  bool temporal_layer_subset_flag = false;            ///< 1 bit; whether the layers are given
  bool HEVC_still_present_flag = false;               ///< 1 bit
  bool HEVC_24hr_picture_present_flag = false;        ///< 1 bit
  bool sub_pic_hrd_params_not_present_flag = false;   ///< 1 bit
  int HDR_WCG_idc = 0;                                ///< 2 bits; 3 says nothing
  std::vector<unsigned char> temporal_layers;         ///< 2 bytes, uninterpreted: the lowest and the highest
};

/// JPEG 2000 pictures (2.6.80).
class SIVANE_API DescriptorJ2KVideo final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorJ2KVideo)
  void _reset() override { private_data_byte.clear(); }

  bool extended_capability_flag = false;  ///< 1 bit; with 1 the colours and what follows are in the rest
  int profile_and_level = 0;              ///< 15 bits
  unsigned int horizontal_size = 0;       ///< 32 bits, pixels
  unsigned int vertical_size = 0;         ///< 32 bits, pixels
  unsigned int max_bit_rate = 0;          ///< 32 bits, bits a second
  unsigned int max_buffer_size = 0;       ///< 32 bits
  int DEN_frame_rate = 0;                 ///< 16 bits
  int NUM_frame_rate = 0;                 ///< 16 bits; frames a second are this by the other
  int color_specification = 0;            ///< 8 bits
  bool still_mode = false;                ///< 1 bit
  bool interlaced_video = false;          ///< 1 bit
  std::vector<unsigned char> private_data_byte;  ///< the rest
};

/// A descriptor with a tag of a space of its own (2.6.90).
class SIVANE_API DescriptorMPEGExtension final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMPEGExtension)
  void _reset() override { data.clear(); }

  int extension_descriptor_tag = 0;  ///< 8 bits
  std::vector<unsigned char> data;   ///< the rest
};

}  // namespace sivane
