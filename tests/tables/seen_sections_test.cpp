// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/seen_sections.h>

#include "heap_block.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

using Sighting = SeenSections::Sighting;

Sighting see(SeenSections& seen, int pid, Bytes const& section) {
  return seen.see(pid, HeapBlock(section).data());
}

TEST(SeenSections, KnowWhatASectionWasLast) {
  SeenSections seen;
  auto const see_body = [&seen](std::string const& body) {
    return see(seen, 0x12, assemble("50 F( 0007 " + body + " crc )"));
  };
  EXPECT_EQ(see_body("C7 01 00 0001 0002 00 50"), Sighting::first);
  EXPECT_EQ(see_body("C7 01 00 0001 0002 00 50"), Sighting::repeated);
  EXPECT_EQ(see_body("C7 01 00 0001 0002 00 50 00"), Sighting::changed);
  EXPECT_EQ(see_body("C7 01 00 0001 0002 00 50"), Sighting::changed);
  EXPECT_EQ(see_body("C9 01 00 0001 0002 00 50"), Sighting::new_version);
  EXPECT_EQ(see_body("C7 01 00 0001 0002 00 50"), Sighting::new_version);
  EXPECT_EQ(seen.size(), 1u);
  seen.clear();
  EXPECT_EQ(see_body("C7 01 00 0001 0002 00 50"), Sighting::first);
}

TEST(SeenSections, TellSectionsApart) {
  SeenSections seen;
  std::pair<int, Bytes> const sections[] = {{0x12, assemble("50 F( 0007 C1 01 00 0001 0002 00 50 crc )")},
                                            {0x13, assemble("50 F( 0007 C1 01 00 0001 0002 00 50 crc )")},
                                            {0x12, assemble("51 F( 0007 C1 01 00 0001 0002 00 50 crc )")},
                                            {0x12, assemble("50 F( 0008 C1 01 00 0001 0002 00 50 crc )")},
                                            {0x12, assemble("50 F( 0007 C1 00 00 0001 0002 00 50 crc )")},
                                            {0x12, assemble("50 F( 0007 C0 01 00 0001 0002 00 50 crc )")},
                                            {0x12, assemble("50 F( 0007 C1 01 00 0003 0002 00 50 crc )")},
                                            {0x12, assemble("50 F( 0007 C1 01 00 0001 0004 00 50 crc )")},
                                            {0x11, assemble("46 F( 0000 C1 00 00 0001 FF crc )")},
                                            {0x11, assemble("46 F( 0000 C1 00 00 0002 FF crc )")},
                                            {0x00, assemble("00 B( 0000 C1 00 00 crc )")}};
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
