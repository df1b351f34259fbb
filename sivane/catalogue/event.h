// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/compared.h>
#include <sivane/catalogue/times.h>
#include <sivane/foundation/export.h>
#include <sivane/registry/codes.h>

#include <chrono>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace sivane::catalogue {

/// An item of an extended event descriptor, as "Director" and a name.
struct EventItem {
  std::string description;  ///< UTF-8
  std::string text;         ///< UTF-8
  /// The members, as they are compared.
  auto tied() const { return std::tie(description, text); }
};

/// What an event is called and told of in one language.
struct EventText {
  std::string language;          ///< ISO 639 code
  std::string title;             ///< UTF-8
  std::string short_text;        ///< UTF-8
  std::string extended_text;     ///< UTF-8; of all its descriptors, by descriptor_number
  std::vector<EventItem> items;  ///< of all its descriptors, by descriptor_number
  /// The members, as they are compared.
  auto tied() const { return std::tie(language, title, short_text, extended_text, items); }
};

/// A genre as two nibbles and the broadcaster's own byte (ETSI EN 300 468, 6.2.9).
struct Genre {
  int level_1 = 0;  ///< 4 bits
  int level_2 = 0;  ///< 4 bits
  int user = 0;     ///< 8 bits
  /// In plain words; null where reserved or the broadcaster's own.
  char const* name() const { return genre_name(level_1, level_2); }
  /// The members, as they are compared.
  auto tied() const { return std::tie(level_1, level_2, user); }
};

/// A parental rating in one country.
struct Rating {
  std::string country;  ///< ISO 3166 code
  int rating = 0;       ///< 8 bits, as coded
  /// In years; none where undefined or the broadcaster's own.
  std::optional<int> minimum_age() const {
    constexpr int last = 0x0F, years_above = 3;
    return rating >= 1 && rating <= last ? std::optional<int>(rating + years_above) : std::nullopt;
  }
  /// The members, as they are compared.
  auto tied() const { return std::tie(country, rating); }
};

/// A component of an event (ETSI EN 300 468, 6.2.8).
struct Component {
  int stream_content = 0;      ///< 4 bits
  int stream_content_ext = 0;  ///< 4 bits
  int type = 0;                ///< component_type, 8 bits
  int tag = 0;                 ///< component_tag, 8 bits
  std::string language;        ///< ISO 639 code
  std::string text;            ///< UTF-8
  /// How it is coded, in plain words; null where that is reserved.
  char const* coding_name() const { return component_coding_name(stream_content, stream_content_ext, type); }
  /// The members, as they are compared.
  auto tied() const { return std::tie(stream_content, stream_content_ext, type, tag, language, text); }
};

/// What a recorder knows a programme or series by (ETSI TS 102 323, 12.1).
struct ContentId {
  int type = 0;  ///< crid_type, 6 bits; 1 an item, 2 a series, 3 a recommendation
  /// As it stands, but that bytes which a URI has none of are written as "%E9"; one that begins with "/" is
  /// of the service's default authority (`Catalogue::default_authority`).
  std::string crid;
  /// The whole of it, as "crid://example.org/1"; as it stands where its authority is not known.
  SIVANE_API std::string uri(std::string const& default_authority) const;
  /// The members, as they are compared.
  auto tied() const { return std::tie(type, crid); }
};

/// An event of a service (ETSI EN 300 468, 5.2.4).
struct Event {
  std::optional<Time> start;                     ///< none where undefined
  std::optional<std::chrono::seconds> duration;  ///< none where undefined
  int running_status = 0;                        ///< 3 bits, as coded
  bool is_scrambled = false;                     ///< free_CA_mode
  std::vector<EventText> texts;                  ///< one a language, in the order of the descriptors
  std::vector<Genre> genres;                     ///< in the order of the descriptors
  std::vector<Rating> ratings;                   ///< in the order of the descriptors
  std::vector<Component> components;             ///< in the order of the descriptors
  std::vector<ContentId> content_ids;            ///< in the order of the descriptors; those that stand there

  /// In the first language that has one; empty where none has.
  SIVANE_API std::string const& title() const;
  /// None where start or duration is undefined.
  std::optional<Time> end() const {
    return start && duration ? std::optional<Time>(*start + *duration) : std::nullopt;
  }
  /// The members, as they are compared.
  auto tied() const {
    return std::tie(start, duration, running_status, is_scrambled, texts, genres, ratings, components,
                    content_ids);
  }
};

}  // namespace sivane::catalogue
