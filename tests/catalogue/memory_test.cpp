// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <string>

#include "eit_text.h"

namespace sivane::testing {
namespace {

using catalogue::Catalogue;

/// A section with events from `first` on, whose titles are longer than a string holds within itself.
std::string events_from(int first, int version) {
  std::string events;
  for (int event = first; event < first + 20; ++event)
    events += titled(event, "the event with the number " + std::to_string(event));
  return eit_text({.version = version}, events);
}

TEST(CatalogueMemory, IsWhatTheHeapHas) {
  Catalogue catalogue;
  std::size_t const before = mallinfo2().uordblks;
  for (int table_id = 0x4E; table_id <= 0x6F; ++table_id) {
    std::string text = events_from(table_id * 20, 0);
    add(catalogue, text.replace(0, 2, eit_text({.table_id = table_id}, "").substr(0, 2)));
  }
  std::size_t const used = mallinfo2().uordblks - before;
  ASSERT_EQ(catalogue.events().size(), 34u * 20);
  if (used == 0) GTEST_SKIP() << "this heap is not glibc's";
  EXPECT_NEAR(static_cast<double>(catalogue.memory()), static_cast<double>(used),
              static_cast<double>(used) / 20);
  EXPECT_LT(catalogue.memory() / catalogue.events().size(), 600u);
}

TEST(CatalogueMemory, OfNetworksIsWhatTheHeapHas) {
  Catalogue catalogue;
  std::size_t const before = mallinfo2().uordblks;
  auto const add_section = [&](std::string const& head, int first, int streams) {
    std::string text;
    for (int stream = first; stream < first + streams; ++stream)
      text += " " + std::to_string(stream) + " 0001 F( 5F[ 00000028 ] 83[ 0007 FC04 ] )";
    add(catalogue, "40 F( 0005 " + head + " F() F(" + text + " ) crc )");
  };
  // So many that a few kilobytes make no difference, which the heap keeps of what was freed.
  for (int number = 0; number < 10; ++number) {
    add_section("C1 0" + std::to_string(number) + " 09", 1000 + number * 150, 150);
  }
  ASSERT_EQ(catalogue.network_streams().size(), 1500u);
  std::size_t const used = mallinfo2().uordblks - before, held = catalogue.memory();
  add_section("C3 00 00", 1000, 1);
  EXPECT_LT(catalogue.memory(), held / 20);
  if (used == 0) GTEST_SKIP() << "this heap is not glibc's";
  EXPECT_NEAR(static_cast<double>(held), static_cast<double>(used), static_cast<double>(used) / 20);
}

TEST(CatalogueMemory, IsBoundedAndFreedForWhatComesLater) {
  catalogue::Options options;
  options.memory = 8000;
  Catalogue catalogue(options);
  add(catalogue, events_from(0, 0));
  std::size_t const held = catalogue.events().size();
  EXPECT_LT(held, 20u);
  EXPECT_EQ(catalogue.left_out(), 20 - held);
  EXPECT_LE(catalogue.memory(), options.memory);
  // What a newer version takes away makes room: that is filled when the section comes again.
  std::string const newer = events_from(100, 1);
  add(catalogue, newer);
  add(catalogue, newer);
  EXPECT_EQ(catalogue.events().size(), held);
  EXPECT_EQ(catalogue.events().begin()->first.event, 100);
  EXPECT_LE(catalogue.memory(), options.memory + 200);
  catalogue.clear();
  EXPECT_EQ(catalogue.memory(), 0u);
  options.memory = 0;
  Catalogue none(options);
  EXPECT_TRUE(add(none, newer).empty());
  EXPECT_EQ(none.left_out(), 1u);
}

}  // namespace
}  // namespace sivane::testing
