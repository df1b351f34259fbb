// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors of events and their components (ETSI EN 300 468; clause numbers are those of V1.13.1). Codes of
// languages and countries are three characters and a terminating zero.
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/foundation/multilingual_name_info.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>

#include <vector>

namespace sivane {

/// An event's name and a short text (6.2.37).
class SIVANE_API DescriptorShortEvent final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorShortEvent)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  char language_code[4] = {};  ///< three characters and a terminating zero
  Text event_name;             ///< up to 255 bytes
  Text text;                   ///< up to 255 bytes
};

/// A longer text over several descriptors, and named items (6.2.15). Throws what its items throw.
class SIVANE_API DescriptorExtendedEvent final : public DescriptorBase {
 public:
  /// Throws "data length mismatch" where the two texts do not fit.
  class SIVANE_API Item {
   public:
    /// `size` is the bytes left on the way in, those consumed on the way out.
    Item(unsigned char const* p, int& size);
    SIVANE_RECORD(Item)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    Text description;  ///< up to 255 bytes
    Text item;         ///< up to 255 bytes
  };

  SIVANE_DESCRIPTOR(DescriptorExtendedEvent)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { items.clear(); }

  int descriptor_number = 0;       ///< 4 bits
  int last_descriptor_number = 0;  ///< 4 bits
  char language_code[4] = {};      ///< three characters and a terminating zero
  Text text;                       ///< up to 255 bytes
  std::vector<Item> items;         ///< in the order of the descriptor
};

/// The event that this one is a copy of (6.2.44).
class SIVANE_API DescriptorTimeShiftedEvent final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorTimeShiftedEvent)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int reference_service_id = 0;  ///< 16 bits
  int reference_event_id = 0;    ///< 16 bits
};

/// What a component stream holds (6.2.8).
class SIVANE_API DescriptorComponent final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorComponent)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  /// 4 bits, of which `stream_content` 9 and above need to be understood; editions before V1.13.1 have
  /// reserved bits in its place. Neither dumps nor documents have it.
  int stream_content_ext = 0;
  int stream_content = 0;      ///< 4 bits
  int component_type = 0;      ///< 8 bits
  int component_tag = 0;       ///< 8 bits
  char language_code[4] = {};  ///< three characters and a terminating zero
  Text text;                   ///< the rest of the descriptor
};

/// An event's genres (6.2.9). Throws "descriptor length mismatch" for an odd length.
class SIVANE_API DescriptorContent final : public DescriptorBase {
 public:
  /// One genre.
  class SIVANE_API Content {
   public:
    SIVANE_RECORD(Content)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;
    /// The genre by `content_nibble_level1`.
    char const* get_content_nibble_level1_text() const;
    char const* get_content_nibble_level2_text() const;  ///< by both nibbles

    int content_nibble_level1 = 0;  ///< 4 bits
    int content_nibble_level2 = 0;  ///< 4 bits
    int user_nibble1 = 0;           ///< 4 bits
    int user_nibble2 = 0;           ///< 4 bits
  };

  SIVANE_DESCRIPTOR(DescriptorContent)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { contents.clear(); }

  std::vector<Content> contents;  ///< in the order of the descriptor
};

/// Ratings by country (6.2.28). Throws `length_error` "parental_rating_descriptor" unless the length is 4n.
class SIVANE_API DescriptorParentalRating final : public DescriptorBase {
 public:
  /// The rating in one country.
  class SIVANE_API RatingInfo {
   public:
    SIVANE_RECORD(RatingInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    char country_code[4] = {};  ///< three characters and a terminating zero
    int rating = 0;             ///< 8 bits, as coded
  };

  SIVANE_DESCRIPTOR(DescriptorParentalRating)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { ratinginfo.clear(); }

  std::vector<RatingInfo> ratinginfo;  ///< in the order of the descriptor
};

/// Local time by country and region (6.2.20). Throws "descriptor start end mismatch" unless the length is
/// 13n. Its dump leaves the stream decimal.
class SIVANE_API DescriptorLocalTimeOffset final : public DescriptorBase {
 public:
  /// The offset of one region.
  class SIVANE_API LocalTime {
   public:
    /// `consumed` is 13.
    LocalTime(unsigned char const* p, int& consumed);
    SIVANE_RECORD(LocalTime)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    char country_code[4] = {};           ///< three characters and a terminating zero
    int country_region_id = 0;           ///< 6 bits
    int local_time_offset_polarity = 0;  ///< 1 bit, 1 is west of Greenwich
    TimeOffset local_time_offset;        ///< now
    DateTime time_of_change;             ///< UTC
    TimeOffset next_time_offset;         ///< from `time_of_change` on
  };

  SIVANE_DESCRIPTOR(DescriptorLocalTimeOffset)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { localtime.clear(); }

  std::vector<LocalTime> localtime;  ///< in the order of the descriptor
};

/// The label by which a recorder knows the programme (6.2.29).
class SIVANE_API DescriptorPDC final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorPDC)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}
  /// Always "to be implemented": a literal of stored dumps.
  char const* get_programme_identification_label_text() const;

  int programme_identification_label = 0;  ///< 20 bits: day 5, month 4, hour 5, minute 6
};

/// A component's name in several languages (6.2.23). Throws `syntax_error` where the names do not end with
/// the descriptor, and what `MultilingualNameInfo` throws.
class SIVANE_API DescriptorMultilingualComponent final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorMultilingualComponent)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { nameinfo.clear(); }

  std::vector<MultilingualNameInfo> nameinfo;  ///< in the order of the descriptor
  int component_tag = 0;                       ///< 8 bits
};

}  // namespace sivane
