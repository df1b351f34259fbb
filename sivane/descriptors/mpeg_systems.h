// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors of ISO/IEC 13818-1 (clauses 2.6.2 to 2.6.34) and the two of the DSM-CC carousels, tags 0x02 to
// 0x14.
#pragma once

#include <sivane/descriptors/descriptor.h>

#include <string>
#include <vector>

namespace sivane {

/// A video stream descriptor's bytes, as an overlay.
struct VIDEO_STREAM_desc : descriptor_base {};

/// Coding parameters of a video elementary stream (2.6.2). Of them a dump prints "TO IMPLEMENT!!!" and no
/// more: dumps that were stored say so.
class SIVANE_API DescriptorVideoStream final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorVideoStream)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}
  /// Stores the tag 2, whatever the first byte says.
  explicit DescriptorVideoStream(VIDEO_STREAM_desc const* descriptor);

  bool multiple_frame_rate_flag = false;    ///< 1 bit
  int frame_rate_code = 0;                  ///< 4 bits
  bool MPEG_1_only_flag = false;            ///< 1 bit
  bool constrained_parameter_flag = false;  ///< 1 bit
  bool still_picture_flag = false;          ///< 1 bit
  // The rest is there only without MPEG_1_only_flag.
  int profile_and_level_indication = 0;    ///< 8 bits
  int chroma_format = 0;                   ///< 2 bits
  bool frame_rate_extension_flag = false;  ///< 1 bit
  int reserved = 0;                        ///< 5 bits
};

/// Coding parameters of an audio elementary stream (2.6.4).
class SIVANE_API DescriptorAudioStream final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorAudioStream)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int free_format_flag = 0;               ///< 1 bit
  int ID = 0;                             ///< 1 bit
  int layer = 0;                          ///< 2 bits
  int variable_rate_audio_indicator = 0;  ///< 1 bit
};

/// A layer of a scalable stream (2.6.6).
class SIVANE_API DescriptorHierarchy final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorHierarchy)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}
  /// The text of `hierarchy_type`.
  char const* get_hierchy_type_string() const;

  int hierarchy_type = 0;                  ///< 4 bits
  int hierarchy_layer_index = 0;           ///< 6 bits
  int hierarchy_embedded_layer_index = 0;  ///< 6 bits
  int hierarchy_channel = 0;               ///< 6 bits
};

/// Whose private data this is (2.6.8).
class SIVANE_API DescriptorRegistration final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorRegistration)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  unsigned int format_identifier = 0;                         ///< 32 bits
  std::vector<unsigned char> additional_identification_info;  ///< raw
};

/// What access units begin with (2.6.10).
class SIVANE_API DescriptorDataStreamAlignment final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDataStreamAlignment)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}
  /// The text of `alignment_type`.
  char const* get_alignment_type_string() const;

  int alignment_type = 0;  ///< 8 bits
};

/// The grid that video windows lie on, in pixels (2.6.12).
class SIVANE_API DescriptorTargetBackgroundGrid final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorTargetBackgroundGrid)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int horizontal_size = 0;           ///< 14 bits
  int vertical_size = 0;             ///< 14 bits
  int aspect_ratio_information = 0;  ///< 4 bits
};

/// A window on the grid (2.6.14).
class SIVANE_API DescriptorVideoWindow final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorVideoWindow)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int horizonal_offset = 0;  ///< 14 bits; spelt as in stored documents
  int vertical_offset = 0;   ///< 14 bits
  int window_priority = 0;   ///< 4 bits
};

/// A conditional access system and where its messages travel (2.6.16).
class SIVANE_API DescriptorCa final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorCa)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { private_bytes.clear(); }
  char const* get_ca_provider1() const;  ///< by the high byte of `sys_id`
  /// Appends to `private_bytes`.
  void add_private_byte(unsigned char byte);

  int sys_id = 0;                            ///< CA_system_ID, 16 bits
  int pid = 0;                               ///< CA_PID, 13 bits
  std::vector<unsigned char> private_bytes;  ///< what follows, raw
};

/// An ISO 639 language descriptor's bytes, as an overlay.
struct ISO_639_LANGUAGE_desc : descriptor_base {};

/// Languages of a stream (2.6.18). Throws "descriptor length mismatch" unless the length is 4n.
class SIVANE_API DescriptorISO639Language final : public DescriptorBase {
 public:
  /// One language.
  class SIVANE_API ISO639Lang {
   public:
    SIVANE_RECORD(ISO639Lang)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
    unsigned char audio_type = 0;        ///< 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorISO639Language)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { language_vector.clear(); }
  /// Stores the tag 10, whatever the first byte says.
  explicit DescriptorISO639Language(ISO_639_LANGUAGE_desc const* descriptor);

  std::vector<ISO639Lang> language_vector;  ///< in the order of the descriptor
};

/// The clock that time stamps come from (2.6.20).
class SIVANE_API DescriptorSystemClock final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorSystemClock)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int external_clock_reference_indicator = 0;  ///< 1 bit
  int clock_acuracy_integer =
      0;  ///< 6 bits; spelt as in stored documents; parts per million times 10^-exponent
  int clock_acuracy_exponent = 0;  ///< 3 bits; spelt likewise
};

/// Bounds on the occupancy of a remultiplexer's buffer (2.6.22).
class SIVANE_API DescriptorMultiplexBufferUtilization final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorMultiplexBufferUtilization)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int bound_valid_flag = 0;        ///< 1 bit
  int LTW_offset_lower_bound = 0;  ///< 15 bits
  int LTW_offset_upper_bound = 0;  ///< 15 bits
};

/// Whose work this is (2.6.24).
class SIVANE_API DescriptorCopyright final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorCopyright)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { additional_copyright_info.clear(); }

  int copyright_identifier = 0;                          ///< 32 bits
  std::vector<unsigned char> additional_copyright_info;  ///< raw
};

/// An upper bound of the bitrate (2.6.26).
class SIVANE_API DescriptorMaximumBitrate final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorMaximumBitrate)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int maximum_bitrate = 0;  ///< 22 bits, in units of 50 bytes a second
};

/// Private (2.6.28).
class SIVANE_API DescriptorPrivateDataIndicator final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorPrivateDataIndicator)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int private_data_indicator = 0;  ///< 32 bits
};

/// A smoothing buffer's size and leak rate (2.6.30).
class SIVANE_API DescriptorSmoothingBuffer final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorSmoothingBuffer)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int sb_leak_rate = 0;  ///< 22 bits, in units of 400 bits a second
  int sb_size = 0;       ///< 22 bits, in bytes
};

/// Which way the system target decoder moves data (2.6.32).
class SIVANE_API DescriptorSTD final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorSTD)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int leak_valid_flag = 0;  ///< 1 bit
};

/// Frame types of a video stream (2.6.34).
class SIVANE_API DescriptorIBP final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorIBP)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int closed_gop_flag = 0;     ///< 1 bit
  int identical_gop_flag = 0;  ///< 1 bit
  int max_gop_length = 0;      ///< 14 bits, in pictures
};

/// An object carousel and, with `formatid` 1, where its service gateway is (ETSI TR 101 202, 4.7.7).
class SIVANE_API DescriptorCarouselId final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorCarouselId)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  unsigned long carousel_id = 0;                 ///< 32 bits
  int formatid = 0;                              ///< 8 bits; 0 and 1 are known, with others nothing follows
  std::vector<unsigned char> private_data_byte;  ///< with `formatid` 0 and 1
  // With `formatid` 1 only.
  int moduleversion = 0;           ///< 8 bits
  int moduleid = 0;                ///< 16 bits
  int blocksize = 0;               ///< 16 bits
  unsigned long modulesize = 0;    ///< 32 bits
  int compressionmethod = 0;       ///< 8 bits
  unsigned long originalsize = 0;  ///< 32 bits
  int timeout = 0;                 ///< 8 bits, in seconds
  int objectkeylength = 0;         ///< 8 bits
  std::string objectkeydata;       ///< `objectkeylength` bytes, raw
};

/// A stream's name within a DSM-CC service (ISO/IEC 13818-6). Throws `length_error`
/// "association_tag_descriptor:selector_length" with `use` 0 unless the selector has 8 bytes, with `use` 1
/// unless none.
class SIVANE_API DescriptorAssociationTag final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorAssociationTag)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int association_tag = 0;                       ///< 16 bits
  int use = 0;                                   ///< 16 bits
  int selector_length = 0;                       ///< 8 bits
  unsigned long transaction_id = 0;              ///< 32 bits, with `use` 0
  unsigned long timeout = 0;                     ///< 32 bits, with `use` 0
  std::vector<unsigned char> selector_byte;      ///< with a `use` above 1
  std::vector<unsigned char> private_data_byte;  ///< raw
};

}  // namespace sivane
