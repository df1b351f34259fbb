// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "programme_guide.h"

#include "multiplex.h"

namespace sample {

namespace {

struct Event {
  int service_id;
  int id;
  Time start;
  Time duration;
  char const* language;
  char const* name;
  char const* text;
  int content;  ///< content_nibble_level_1 and _2
  int age;
};

// The present event of a service stands in front of its following one. A name that begins with 0x15 is UTF-8.
constexpr Event events[] = {
    {0x0101, 11, {18, 0, 0}, {0, 45, 0}, "eng", "Tide Tables", "Water levels, with opinions.", 0x20, 0},
    {0x0101, 12, {18, 45, 0}, {1, 30, 0}, "eng", "The Keeper's Cat", "A lighthouse, a cat, no fog.", 0x10, 9},
    {0x0102, 21, {17, 30, 0}, {1, 0, 0}, "fra", "\x15Th\xC3\xA9 au phare", "Trois invit\xC2\x65s.", 0x30, 0},
    {0x0102, 22, {18, 30, 0}, {2, 5, 0}, "fra", "Le dernier phare", "Drame en haute mer.", 0x10, 12},
    {0x0103, 31, {16, 0, 0}, {4, 0, 0}, "eng", "Low Notes", "Music for bad visibility.", 0x60, 0},
    {0x0103, 32, {20, 0, 0}, {10, 30, 0}, "eng", "Night Watch", "", 0x60, 0},
};

Bytes descriptors_of(Event const& event) {
  Bytes const language = characters(event.language);
  Bytes descriptors = make_descriptor(0x4D, language + text_field(event.name) + text_field(event.text)) +
                      make_descriptor(0x54, u8(event.content) + u8(0x00));
  // The rating is the minimum age minus 3.
  if (event.age > 3) descriptors = descriptors + make_descriptor(0x55, language + u8(event.age - 3));
  return descriptors;
}

Bytes eit(Event const& event, int section_number) {
  constexpr int present_following_actual = 0x4E;
  constexpr int not_running = 1 << 1;
  constexpr int running = 4 << 1;
  Bytes const body = u16(transport_stream_id) + u16(network_id) + u8(1) + u8(present_following_actual) +
                     u16(event.id) + time_field(event.start) + bcd(event.duration) +
                     loop_field(descriptors_of(event), section_number == 0 ? running : not_running);
  return sivane::testing::make_section({.table_id = present_following_actual,
                                        .context_id = event.service_id,
                                        .section_number = section_number,
                                        .last_section_number = 1},
                                       body);
}

}  // namespace

std::vector<Bytes> eit_sections(int version) {
  std::vector<Bytes> sections;
  for (Service const& service : services(version)) {
    int section_number = 0;
    for (Event const& event : events) {
      if (event.service_id == service.id) sections.push_back(eit(event, section_number++));
    }
  }
  return sections;
}

Bytes tdt(Time now) { return sivane::testing::make_short_section(0x70, time_field(now)); }

Bytes tot(Time now) {
  // Greenwich time, and an hour ahead of it from the last Sunday of March on (day 61128, 01:00 UTC).
  Bytes const offset = characters("GBR") + u8(0x02) + u16(0x0000) + u16(61128) + bcd({1, 0, 0}) + u16(0x0100);
  Bytes section = sivane::testing::make_short_section(
      0x73, time_field(now) + loop_field(make_descriptor(0x58, offset)) + Bytes(4));
  sivane::testing::repair_crc(section);
  return section;
}

}  // namespace sample
