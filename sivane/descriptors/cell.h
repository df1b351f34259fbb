// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors of terrestrial cells, announcements, applications and data broadcasts (ETSI EN 300 468; clause
// numbers are those of V1.13.1). None of them prints anything after the tag line.
#pragma once

#include <sivane/descriptors/descriptor.h>

#include <string>
#include <vector>

namespace sivane {

/// Where cells lie (6.2.7). Throws `syntax_error` where they do not end with the descriptor, and what they
/// throw.
class SIVANE_API DescriptorCellList final : public DescriptorBase {
 public:
  /// Throws `item_length_error` unless `subcell_info_length` is 8n.
  class SIVANE_API CellListData {
   public:
    /// A part of the cell, and where it lies.
    class SIVANE_API SubCellInfo {
     public:
      SIVANE_RECORD(SubCellInfo)

      int cell_id_extension = 0;         ///< 8 bits
      int cell_latitude = 0;             ///< 16 bits, as coded
      int cell_longitude = 0;            ///< 16 bits, as coded
      int cell_extend_of_latitude = 0;   ///< 12 bits
      int cell_extend_of_longitude = 0;  ///< 12 bits
    };

    /// `size` is not looked at.
    CellListData(unsigned char const* p, int size, int& consumed);
    SIVANE_RECORD(CellListData)

    int cell_id = 0;                         ///< 16 bits
    int cell_latitude = 0;                   ///< 16 bits, as coded
    int cell_longitude = 0;                  ///< 16 bits, as coded
    int cell_extend_of_latitude = 0;         ///< 12 bits
    int cell_extend_of_longitude = 0;        ///< 12 bits
    int subcell_info_length = 0;             ///< 8 bits, bytes
    std::vector<SubCellInfo> sub_cell_info;  ///< in the order of the descriptor
  };

  SIVANE_DESCRIPTOR(DescriptorCellList)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  std::vector<CellListData> cell_list_data;  ///< in the order of the descriptor
};

/// Which frequencies cells use (6.2.6). Throws `syntax_error` where they do not end with the descriptor, and
/// what they throw.
class SIVANE_API DescriptorCellFrequncyLink final : public DescriptorBase {
 public:
  /// Throws `item_length_error` unless `sub_cell_info_length` is 5n.
  class SIVANE_API CellFrequencyLinkData {
   public:
    /// A part of the cell, and the frequency of its transposer.
    class SIVANE_API SubCellInfo {
     public:
      SIVANE_RECORD(SubCellInfo)

      int cell_id_extension = 0;               ///< 8 bits
      unsigned long transposer_frequency = 0;  ///< 32 bits, in units of 10 Hz
    };

    /// `size` is not looked at.
    CellFrequencyLinkData(unsigned char const* p, int size, int& consumed);
    SIVANE_RECORD(CellFrequencyLinkData)

    int cell_id = 0;                         ///< 16 bits
    unsigned long frequency = 0;             ///< 32 bits, in units of 10 Hz
    int sub_cell_info_length = 0;            ///< 8 bits, bytes
    std::vector<SubCellInfo> sub_cell_info;  ///< in the order of the descriptor
  };

  SIVANE_DESCRIPTOR(DescriptorCellFrequncyLink)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  std::vector<CellFrequencyLinkData> cell_frequency_link_data;  ///< in the order of the descriptor
};

/// Announcements that a service supports (6.2.3). Throws `syntax_error` where they do not end with the
/// descriptor.
class SIVANE_API DescriptorAnnouncementSupport final : public DescriptorBase {
 public:
  /// One kind of announcement, and the service that it is on.
  class SIVANE_API AnnouncementSupportData {
   public:
    /// `size` is not looked at.
    AnnouncementSupportData(unsigned char const* p, int size, int& consumed);
    SIVANE_RECORD(AnnouncementSupportData)

    int announcement_type = 0;    ///< 4 bits
    int reference_type = 0;       ///< 3 bits; the rest is there with 1, 2 and 3 only
    int original_network_id = 0;  ///< 16 bits
    int transport_stream_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
    int component_tag = 0;        ///< 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAnnouncementSupport)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int announcement_support_indicator = 0;                          ///< 16 bits, one a type
  std::vector<AnnouncementSupportData> announcement_support_data;  ///< in the order of the descriptor
};

/// Applications that an AIT on this PID lists (ETSI TS 101 812, 10.7.1). Throws an `error` without a text
/// unless the length is 3n.
class SIVANE_API DescriptorApplicationSignalling final : public DescriptorBase {
 public:
  /// One type of application, and the version of its AIT.
  class SIVANE_API ApplicationInfo {
   public:
    SIVANE_RECORD(ApplicationInfo)
    /// "DVB-J application", "DVB-HTML" or another text by `application_type`.
    char const* get_application_type_text() const;

    int application_type = 0;    ///< 16 bits
    int AIT_version_number = 0;  ///< 5 bits
  };

  SIVANE_DESCRIPTOR(DescriptorApplicationSignalling)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  std::vector<ApplicationInfo> application_info;  ///< in the order of the descriptor
};

/// A data broadcast (6.2.11).
class SIVANE_API DescriptorDataBroadcast final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDataBroadcast)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int data_broadcast_id = 0;                  ///< 16 bits
  int component_tag = 0;                      ///< 8 bits
  int selector_length = 0;                    ///< 8 bits
  char language_code[4] = {};                 ///< three characters and a terminating zero
  int textlength = 0;                         ///< 8 bits
  std::string text;                           ///< raw, a character table selector included
  std::vector<unsigned char> selector_bytes;  ///< raw
};

/// How data is broadcast (6.2.12).
class SIVANE_API DescriptorDataBroadcastId final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDataBroadcastId)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int data_broadcast_id = 0;                    ///< 16 bits
  std::vector<unsigned char> id_selector_byte;  ///< raw, which documents do not carry
};

}  // namespace sivane
