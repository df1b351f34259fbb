// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/registry/registry.h>

#include <map>

#include "registries.h"

namespace sivane::testing {
namespace {

std::string const unknown = "<unknown>";

TEST(RegistryLookup, FindsTheLastRowOfAnIdAndNoOther) {
  init();
  for (Registry const& registry : registries()) {
    std::map<std::uint32_t, std::string> names;
    for (auto const& [id, name] : registry.rows) names[id] = name;
    auto const check = [&](std::uint32_t id) {
      ASSERT_EQ(registry.look_up(static_cast<int>(id)), names.contains(id) ? names[id] : unknown)
          << registry.name << ' ' << id;
    };
    for (std::uint32_t id = 0; id <= 0xFFFF; ++id) check(id);
    for (auto const& row : registry.rows) {
      std::uint32_t const id = row.first;
      for (std::uint32_t const other : {id - 1, id, id + 1, id ^ 0x10000, id ^ 0x80000000}) check(other);
    }
  }
}

TEST(RegistryLookup, ByTheExamplesOfTheListsAlsoAfterASecondInit) {
  init();
  char const* const german = get_network_id(0x3001);
  EXPECT_STREQ(german, "German Digital Terrestrial Television");
  init();
  EXPECT_EQ(get_network_id(0x3001), german);
  EXPECT_STREQ(get_network_id(0x3101), "Czech Republic Digital Terrestrial Television");
  EXPECT_STREQ(get_network_id(0xA050), "Cable & Wireless Communications");
  EXPECT_STREQ(get_network_id(0x0058), "(Thiacom 1 & 2 co-located 78.5\260E)");
  EXPECT_STREQ(get_original_network_id(0x0069), "(Optus B3 156\260E)");
  EXPECT_STREQ(get_private_data_id(-0x03030304), "France Telecom");
  EXPECT_EQ(get_ca_system_id(0x1A00), unknown);
  EXPECT_NE(get_mhp_id(29), unknown);
  EXPECT_EQ(get_mhp_id(30), unknown);
}

}  // namespace
}  // namespace sivane::testing
