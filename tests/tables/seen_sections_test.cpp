// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/seen_sections.h>

#include "heap_block.h"

namespace sivane::testing {
namespace {

using Sighting = SeenSections::Sighting;

Sighting see(SeenSections& seen, int pid, Bytes const& section) {
  return seen.see(pid, HeapBlock(section).data());
}

TEST(SeenSections, KnowWhatASectionWasLast) {
  SeenSections seen;
  LongSection const header{.table_id = 0x50, .context_id = 7, .version_number = 3, .section_number = 1};
  Bytes const body = hex("0001 0002 00 50");
  EXPECT_EQ(see(seen, 0x12, make_section(header, body)), Sighting::first);
  EXPECT_EQ(see(seen, 0x12, make_section(header, body)), Sighting::repeated);
  EXPECT_EQ(see(seen, 0x12, make_section(header, body + hex("00"))), Sighting::changed);
  EXPECT_EQ(see(seen, 0x12, make_section(header, body)), Sighting::changed);
  LongSection next = header;
  next.version_number = 4;
  EXPECT_EQ(see(seen, 0x12, make_section(next, body)), Sighting::new_version);
  EXPECT_EQ(see(seen, 0x12, make_section(header, body)), Sighting::new_version);
  EXPECT_EQ(seen.size(), 1u);
  seen.clear();
  EXPECT_EQ(see(seen, 0x12, make_section(header, body)), Sighting::first);
}

TEST(SeenSections, TellSectionsApart) {
  LongSection const header{.table_id = 0x50, .context_id = 7, .section_number = 1};
  auto const with = [&header](auto member, int value) {
    LongSection other = header;
    other.*member = value;
    return other;
  };
  SeenSections seen;
  std::vector<std::pair<int, Bytes>> const sections = {
      {0x12, make_section(header, hex("0001 0002 00 50"))},
      {0x13, make_section(header, hex("0001 0002 00 50"))},
      {0x12, make_section(with(&LongSection::table_id, 0x51), hex("0001 0002 00 50"))},
      {0x12, make_section(with(&LongSection::context_id, 8), hex("0001 0002 00 50"))},
      {0x12, make_section(with(&LongSection::section_number, 0), hex("0001 0002 00 50"))},
      {0x12, make_section(with(&LongSection::current_next_indicator, 0), hex("0001 0002 00 50"))},
      {0x12, make_section(header, hex("0003 0002 00 50"))},
      {0x12, make_section(header, hex("0001 0004 00 50"))},
      {0x11, make_section({.table_id = 0x46}, hex("0001 FF"))},
      {0x11, make_section({.table_id = 0x46}, hex("0002 FF"))},
      {0x00, make_section({}, {})}};
  for (auto const& [pid, section] : sections) EXPECT_EQ(see(seen, pid, section), Sighting::first);
  for (auto const& [pid, section] : sections) EXPECT_FALSE(seen.is_new(pid, HeapBlock(section).data()));
}

TEST(SeenSections, NeverKeepWhatMayBeDamaged) {
  SeenSections seen;
  Bytes const good = make_pat({{1, 0x100}});
  Bytes damaged = good;
  damaged[9] ^= 1;
  for (Bytes const& section : {damaged, damaged, make_short_section(0x70, Bytes(5)),
                               hex("00 B0 08 0001 C1 00 00 112233"), hex("00 B0 00")}) {
    EXPECT_EQ(see(seen, 0, section), Sighting::unknowable);
  }
  EXPECT_EQ(see(seen, 0, good), Sighting::first);
  EXPECT_EQ(see(seen, 0, good), Sighting::repeated);
}

TEST(SeenSections, KeepNoMoreThanTheyMay) {
  constexpr std::size_t capacity = 3000;
  SeenSections seen(capacity);
  EXPECT_EQ(seen.memory(), 0u);
  auto const section = [](int i) {
    return make_section({.context_id = i >> 4, .section_number = i & 0xF}, {});
  };
  for (int i = 0; i < 3000; ++i) ASSERT_EQ(see(seen, 0, section(i)), Sighting::first) << i;
  for (int i = 0; i < 3000; ++i) ASSERT_EQ(see(seen, 0, section(i)), Sighting::repeated) << i;
  EXPECT_EQ(seen.size(), capacity);
  EXPECT_LE(seen.memory(), 64 * capacity);
  EXPECT_EQ(see(seen, 0, section(3000)), Sighting::first);
  EXPECT_EQ(seen.size(), 1u);
  EXPECT_EQ(see(seen, 0, section(0)), Sighting::first);
}

}  // namespace
}  // namespace sivane::testing
