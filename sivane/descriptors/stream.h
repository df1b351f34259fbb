// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors of what a stream carries and how it is buffered (ETSI EN 300 468; clause numbers are those of
// V1.13.1). Language codes are three characters and a terminating zero.
#pragma once

#include <sivane/descriptors/descriptor.h>

#include <vector>

namespace sivane {

/// The number by which other descriptors name this stream (6.2.39).
class SIVANE_API DescriptorStreamIdentifier final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorStreamIdentifier)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int component_tag = 0;  ///< 8 bits
};

/// Teletext pages of a stream (6.2.43). Throws "descriptor length mismatch" unless the length is 5n.
class SIVANE_API DescriptorTeletext final : public DescriptorBase {
 public:
  /// One page.
  class SIVANE_API TeletextItem {
   public:
    SIVANE_RECORD(TeletextItem)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;
    /// The text of `teletext_type`.
    char const* get_teletext_type_text() const;

    char language_code[4] = {};        ///< three characters and a terminating zero
    int teletext_type = 0;             ///< 5 bits
    int teletext_magazine_number = 0;  ///< 3 bits, 0 is magazine 8
    int teletext_page_number = 0;      ///< 8 bits, two hexadecimal digits
  };

  SIVANE_DESCRIPTOR(DescriptorTeletext)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { teletextitems.clear(); }

  std::vector<TeletextItem> teletextitems;  ///< in the order of the descriptor
};

/// Teletext pages in the vertical blanking interval (6.2.48). Throws `item_length_error` unless the length is
/// 5n.
class SIVANE_API DescriptorVBITeletext final : public DescriptorBase {
 public:
  /// One page.
  class SIVANE_API VBITeleTextData {
   public:
    SIVANE_RECORD(VBITeleTextData)
    /// Prints nothing.
    void _dump_state(std::ostream&) const {}

    char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
    int teletext_type = 0;               ///< 5 bits
    int teletext_magazine_number = 0;    ///< 3 bits, 0 is magazine 8
    int teletext_page_number = 0;        ///< 8 bits, two hexadecimal digits
  };

  SIVANE_DESCRIPTOR(DescriptorVBITeletext)
  void _dump_state(std::ostream&) const override {}
  void _reset() override { vbiteletextdata.clear(); }

  std::vector<VBITeleTextData> vbiteletextdata;  ///< in the order of the descriptor
};

/// DVB subtitles of a stream (6.2.41). Throws `length_error` "subtitling_descriptor" unless the length is 8n.
class SIVANE_API DescriptorSubtitling final : public DescriptorBase {
 public:
  /// The subtitles of one language.
  class SIVANE_API SubtitlingInfo {
   public:
    SIVANE_RECORD(SubtitlingInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
    int subtitling_type = 0;             ///< 8 bits
    int composition_page_id = 0;         ///< 16 bits
    int antcillary_page_id = 0;          ///< 16 bits; spelt as in stored documents
  };

  SIVANE_DESCRIPTOR(DescriptorSubtitling)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { subtitlinginfo.clear(); }

  std::vector<SubtitlingInfo> subtitlinginfo;  ///< in the order of the descriptor
};

/// Services in the vertical blanking interval (6.2.47). Throws `syntax_error` where they do not end with the
/// descriptor.
class SIVANE_API DescriptorVBIData final : public DescriptorBase {
 public:
  /// The lines of one data service.
  class SIVANE_API VBIServiceData {
   public:
    /// `size` is not looked at.
    VBIServiceData(unsigned char const* p, int size, int& consumed);
    SIVANE_RECORD(VBIServiceData)
    /// Prints nothing.
    void _dump_state(std::ostream&) const {}

    int data_service_id = 0;                 ///< 8 bits
    int data_service_descriptor_length = 0;  ///< 8 bits
    std::vector<unsigned char> data;         ///< raw, whatever the service
  };

  SIVANE_DESCRIPTOR(DescriptorVBIData)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  std::vector<VBIServiceData> vbiservicedata;  ///< in the order of the descriptor
};

/// Properties of an AC-3 stream (Annex D). Members whose flag is not set stay 0.
class SIVANE_API DescriptorAC3 final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorAC3)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int component_type_flag = 0;                 ///< 1 bit
  int bsid_flag = 0;                           ///< 1 bit
  int mainid_flag = 0;                         ///< 1 bit
  int asvc_flag = 0;                           ///< 1 bit
  int AC_3_type = 0;                           ///< 8 bits
  int bsid = 0;                                ///< 8 bits
  int mainid = 0;                              ///< 8 bits
  int asvc = 0;                                ///< 8 bits
  std::vector<unsigned char> additional_info;  ///< raw
};

/// Ancillary data in an audio stream (6.2.2).
class SIVANE_API DescriptorAncillaryData final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorAncillaryData)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int ancillary_data_identifier = 0;  ///< 8 bits, one a kind of data
};

/// A smoothing buffer's size and leak rate as codes (6.2.38).
class SIVANE_API DescriptorShortSmoothingBuffer final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorShortSmoothingBuffer)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { DVB_reserved.clear(); }

  int sb_size = 0;                          ///< 2 bits
  int sb_leak_rate = 0;                     ///< 6 bits
  std::vector<unsigned char> DVB_reserved;  ///< raw
};

/// A partial transport stream (6.2.30). The body is not kept.
class SIVANE_API DescriptorPartialTransportStream final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorPartialTransportStream)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}
};

/// What the adaptation fields of a stream hold (6.2.1).
class SIVANE_API DescriptorAdaptationFieldData final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorAdaptationFieldData)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int adaptation_field_data_identifier = 0;  ///< 8 bits, one a kind of data
};

/// Digital satellite news gathering (6.2.14).
class SIVANE_API DescriptorDSNG final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDSNG)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  std::vector<unsigned char> DSNG_data;  ///< raw
};

/// Says that a stream is an MPEG-2 one, for news gathering (6.2.46).
class SIVANE_API DescriptorTransportStream final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorTransportStream)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  std::vector<unsigned char> transport_stream_data;  ///< raw
};

}  // namespace sivane
