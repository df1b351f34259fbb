// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "descriptor_check.h"

namespace sivane::testing {
namespace {

TEST(Event, ShortEvent) {
  const auto spell = [](auto const& d) { return members(d.language_code, d.event_name, d.text); };
  // A character table selector is no part of the text.
  check<DescriptorShortEvent>("4D 0A 65 6E 67 03 05 41 42 02 E9 43",
                              {"4d short_event_descriptor", "language_code: eng", "event_name: AB",
                               "text: \xE9"
                               "C"},
                              spell, "'eng' 'AB' '\\e9C'");
  check<DescriptorShortEvent>("4D 05 65 6E 67 00 00",
                              {"4d short_event_descriptor", "language_code: eng", "event_name: ", "text: "},
                              spell, "'eng' '' ''");
}

TEST(Event, ExtendedEvent) {
  const auto spell = [](auto const& d) {
    return members(d.descriptor_number, d.last_descriptor_number, d.language_code, d.text) +
           each(d.items, [](auto const& r) { return members(r.description, r.item); });
  };
  // The dump has the text before the items, the stream behind them.
  check<DescriptorExtendedEvent>(
      "4E 11 9E 65 6E 67 09 02 41 42 03 05 43 44 00 00 02 45 46",
      {"4e extended_event_descriptor", "descriptor_number: 9", "last_descriptor_number: e",
       "language_code: eng", "text: EF", "description: AB", "item: CD", "description: ", "item: "},
      spell, "9 e 'eng' 'EF'{'AB' 'CD'}{'' ''}", "9 e 'eng' 'EF'");
  check<DescriptorExtendedEvent>("4E 08 61 65 6E 67 00 02 05 41",
                                 {"4e extended_event_descriptor", "descriptor_number: 6",
                                  "last_descriptor_number: 1", "language_code: eng", "text: A"},
                                 spell, "6 1 'eng' 'A'");
}

TEST(Event, TimeShiftedEvent) {
  const auto spell = [](auto const& d) { return members(d.reference_service_id, d.reference_event_id); };
  check<DescriptorTimeShiftedEvent>(
      "4F 04 80 01 80 02",
      {"4f time_shifted_event_descriptor", "reference_service_id: 8001", "reference_event_id: 8002"}, spell,
      "8001 8002");
}

TEST(Event, Component) {
  const auto spell = [](auto const& d) {
    return members(d.stream_content, d.component_type, d.component_tag, d.language_code, d.text);
  };
  check<DescriptorComponent>("50 08 F9 85 86 65 6E 67 05 41",
                             {"50 component_descriptor", "stream_content: 9", "component_type: 85",
                              "component_tag: 86", "language_code: eng", "text: A"},
                             spell, "9 85 86 'eng' 'A'");
  check<DescriptorComponent>("50 06 06 01 02 65 6E 67",
                             {"50 component_descriptor", "stream_content: 6", "component_type: 1",
                              "component_tag: 2", "language_code: eng", "text: "},
                             spell, "6 1 2 'eng' ''");
}

TEST(Event, Content) {
  const auto spell = [](auto const& d) {
    return each(d.contents, [](auto const& r) {
      return members(r.content_nibble_level1, r.content_nibble_level2, r.user_nibble1, r.user_nibble2);
    });
  };
  check<DescriptorContent>("54 04 12 34 B9 F8",
                           {"54 content_descriptor", "content_nibble_level1: 1", "content_nibble_level2: 2",
                            "user_nibble1: 3", "user_nibble2: 4", "content_nibble_level1: b",
                            "content_nibble_level2: 9", "user_nibble1: f", "user_nibble2: 8"},
                           spell, "{1 2 3 4}{b 9 f 8}", "");
}

TEST(Event, ParentalRating) {
  const auto spell = [](auto const& d) {
    return each(d.ratinginfo, [](auto const& r) { return members(r.country_code, r.rating); });
  };
  const std::string label = "DescriptorParentalRating::RatingInfo::";
  check<DescriptorParentalRating>("55 08 47 42 52 8F 44 45 55 01",
                                  {"55 parental_rating_descriptor", label + "country_code: GBR",
                                   label + "rating: 8f", label + "country_code: DEU", label + "rating: 1"},
                                  spell, "{'GBR' 8f}{'DEU' 1}", "");
}

// Times are written in decimal, and leave the numbers of the next record decimal too.
TEST(Event, LocalTimeOffset) {
  const auto spell = [](auto const& d) {
    return each(d.localtime, [](auto const& r) {
      return members(r.country_code, r.country_region_id, r.local_time_offset_polarity,
                     r.local_time_offset.hour, r.local_time_offset.minute,
                     r.time_of_change.get_date_as_text(), r.next_time_offset.hour, r.next_time_offset.minute);
    });
  };
  check<DescriptorLocalTimeOffset>(
      "58 1A 47 42 52 86 01 30 C0 79 12 45 00 02 45  44 45 55 79 10 59 C0 7A 23 59 58 11 01",
      {"58 local_time_offset_descriptor", "country_code: GBR", "country_region_id: 21",
       "local_time_offset_polarity: 0", "local_time_offset: 1:30", "time_of_change: 13/10-1993 12:45:0",
       "next_time_offset: 2:45", "country_code: DEU", "country_region_id: 30",
       "local_time_offset_polarity: 1", "local_time_offset: 10:59", "time_of_change: 14/10-1993 23:59:58",
       "next_time_offset: 11:1"},
      spell, "{'GBR' 21 0 1 1e '13 10 1993 12 45 0' 2 2d}{'DEU' 1e 1 a 3b '14 10 1993 23 59 58' b 1}", "");
  check<DescriptorLocalTimeOffset>("58 00", {"58 local_time_offset_descriptor"}, spell, "");
}

TEST(Event, Pdc) {
  const auto spell = [](auto const& d) { return members(d.programme_identification_label); };
  check<DescriptorPDC>("69 03 F8 00 81", {"69 PDC_descriptor"}, spell, "80081");
}

TEST(Event, MultilingualComponent) {
  const auto spell = [](auto const& d) {
    return members(d.component_tag) + each(d.nameinfo, [](auto const& r) {
             return members(r.ISO_639_language_code, r.text_len, r.name);
           });
  };
  check<DescriptorMultilingualComponent>(
      "5E 07 85 65 6E 67 02 05 41",
      {"5e multilingual_component_name_descriptor", "component_tag: 85",
       "MultilingualNameInfo::ISO_639_language_code: eng", "MultilingualNameInfo::text_len: 2",
       "MultilingualNameInfo::name: \x05"
       "A"},
      spell, "85{'eng' 2 '\\05A'}", "85");
  check<DescriptorMultilingualComponent>(
      "5E 01 85", {"5e multilingual_component_name_descriptor", "component_tag: 85"}, spell, "85");
}

}  // namespace
}  // namespace sivane::testing
