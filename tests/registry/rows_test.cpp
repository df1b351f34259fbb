// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The rows that are built in, by what is known of the published lists.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "registries.h"

namespace sivane::testing {
namespace {

using Ids = std::vector<std::uint32_t>;
using Spans = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
using Groups = std::map<std::uint32_t, std::vector<std::string>>;

Groups by_id(Rows const& rows) {
  Groups groups;
  for (auto const& [id, name] : rows) groups[id].push_back(name);
  return groups;
}

/// The unbroken runs of ids that `is_in` picks.
template <class Predicate>
Spans spans(Groups const& groups, Predicate is_in) {
  Spans runs;
  for (auto const& group : groups) {
    if (!is_in(group)) continue;
    if (runs.empty() || runs.back().second + 1 != group.first) runs.emplace_back(group.first, group.first);
    runs.back().second = group.first;
  }
  return runs;
}

TEST(RegistryRows, HaveTheCountsRangesAndOrderOfTheLists) {
  struct {
    char const* name;
    std::size_t rows, distinct;
    std::uint32_t least, greatest;
    Ids head;
  } const known[] = {
      {"network", 5994, 3591, 0x0000, 0xFFFF, {0x0058}},
      {"ca_system", 9362, 9362, 0x0000, 0x4AD1, {}},
      {"mhp", 30, 30, 0x00, 0x1D, {}},
      {"private_data", 628, 628, 0x00000000, 0xFCFCFCFC, {}},
      {"data_broadcast", 279, 279, 0x0000, 0xFFFF, {}},
      {"original_network", 542, 542, 0x0000, 0xFFFE, {0x0069, 0x0073}},
      {"bouquet", 1150, 1150, 0x0000, 0xFD08, {}},
  };
  ASSERT_EQ(std::size(known), registries().size());
  for (auto const& [name, rows, distinct, least, greatest, head] : known) {
    SCOPED_TRACE(name);
    Registry const& registry = registry_named(name);
    Ids ids;
    for (auto const& row : registry.rows) ids.push_back(row.first);
    EXPECT_EQ(ids.size(), rows);
    EXPECT_EQ(Ids(ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(registry.head)), head);
    ids.erase(ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(registry.head));
    EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
    EXPECT_EQ(ids.front(), least);
    EXPECT_EQ(ids.back(), greatest);
    EXPECT_EQ(by_id(registry.rows).size(), distinct);
  }
}

TEST(RegistryRows, HaveTheNamesThatWerePublished) {
  std::string const terrestrial = " Digital Terrestrial Television";
  struct {
    char const* registry;
    std::uint32_t id;
    std::vector<std::string> names;
  } const known[] = {
      {"network", 0x0000, {"Reserved"}},
      {"network", 0x0001, {"Astra Satellite Network 19,2\260E"}},
      {"network", 0xFFFF, {"Private_temporary_use"}},
      {"network", 0x3001, {"UK" + terrestrial, "German" + terrestrial}},
      {"network",
       0x3101,
       {"Spanish" + terrestrial, "Swedish" + terrestrial, "US" + terrestrial, "Netherlands" + terrestrial,
        "Czech Republic" + terrestrial}},
      {"network", 0xA050, {"Tele Denmark", "Cable & Wireless Optus", "Cable & Wireless Communications"}},
      {"ca_system", 0x0001, {"Standardized systems"}},
      {"mhp", 0x0000, {"Reserved"}},
      {"data_broadcast", 0x0001, {"Data pipe"}},
      {"data_broadcast", 0x0007, {"Object Carousel"}},
      {"data_broadcast", 0x00F0, {"MHP Object Carousel"}},
      {"data_broadcast", 0xFFFF, {"Reserved for future use"}},
      {"original_network", 0x0069, {"(Optus B3 156\260E)"}},
  };
  for (auto const& [registry, id, names] : known) {
    EXPECT_EQ(by_id(registry_named(registry).rows)[id], names) << registry << ' ' << id;
  }
}

TEST(RegistryRows, KeepWhatTheListsLeftInTheNames) {
  auto const count = [](char const* registry, auto matches) {
    Rows const& rows = registry_named(registry).rows;
    return std::count_if(rows.begin(), rows.end(), [&](auto const& row) { return matches(row.second); });
  };
  auto const is = [](char const* text) { return [=](std::string const& name) { return name == text; }; };
  auto const has_entity = [](std::string const& name) { return name.find("&nbsp;") != std::string::npos; };
  EXPECT_EQ(count("ca_system", has_entity), 512);
  EXPECT_EQ(count("private_data", has_entity), 38);
  EXPECT_EQ(count("data_broadcast", is("Reserved for future use by DVB")), 231);
  EXPECT_EQ(count("original_network", is("Private_temporary_use")), 255);
  int ending_in_a_no_break_space = 0;
  for (Registry const& registry : registries()) {
    for (auto const& [id, name] : registry.rows) {
      EXPECT_TRUE(!name.empty() && name.size() <= 69) << registry.name << ' ' << id;
      ending_in_a_no_break_space += name.ends_with('\xA0') ? 1 : 0;
    }
  }
  EXPECT_EQ(ending_in_a_no_break_space, 10);
}

TEST(RegistryRows, LieWhereTheListsHaveThem) {
  auto const where = [](char const* registry, auto is_in) {
    return spans(by_id(registry_named(registry).rows), is_in);
  };
  EXPECT_EQ(where("ca_system", [](auto const&) { return true; }),
            (Spans{{0x0000, 0x19FF}, {0x2000, 0x26FF}, {0x4700, 0x4A8F}, {0x4AD0, 0x4AD1}}));
  EXPECT_EQ(where("ca_system", [](auto const& group) { return group.second.front() == "Canal Plus"; }),
            (Spans{{0x0100, 0x01FF}}));
  EXPECT_EQ(where("private_data", [](auto const& group) { return group.first >= 0x80000000; }),
            (Spans{{0xBBBBBBBB, 0xBBBBBBBB}, {0xECCA0001, 0xECCA0001}, {0xFCFCFCFC, 0xFCFCFCFC}}));
}

TEST(RegistryRows, RepeatNetworkIds) {
  Groups const groups = by_id(registry_named("network").rows);
  EXPECT_EQ(spans(groups, [](auto const& group) { return group.second.size() > 1; }),
            (Spans{{0x022F, 0x022F},
                   {0x3001, 0x30BB},
                   {0x30BD, 0x31FF},
                   {0x3201, 0x3400},
                   {0xA010, 0xA010},
                   {0xA041, 0xA045},
                   {0xA050, 0xA070},
                   {0xA12B, 0xA12B},
                   {0xA510, 0xA510},
                   {0xA600, 0xA615},
                   {0xA61F, 0xA620}}));
  Ids of_one_name;
  std::size_t repeated = 0;
  std::size_t unreachable = 0;
  std::size_t largest = 0;
  for (auto const& [id, names] : groups) {
    repeated += names.size() > 1;
    unreachable += names.size() - 1;
    largest = std::max(largest, names.size());
    if (names.size() > 1 && std::set(names.begin(), names.end()).size() == 1) of_one_name.push_back(id);
  }
  EXPECT_EQ(repeated, 1088u);
  EXPECT_EQ(unreachable, 2403u);
  EXPECT_EQ(largest, 5u);
  EXPECT_EQ(of_one_name, (Ids{0x022F, 0xA620}));
}

/// UTF-8 of ISO 8859-1 text.
std::string utf8(std::string const& latin1) {
  std::string text;
  for (char const c : latin1) {
    auto const byte = static_cast<unsigned char>(c);
    if (byte >= 0x80) text += static_cast<char>(0xC0 | byte >> 6);
    text += static_cast<char>(byte < 0x80 ? byte : 0x80 | (byte & 0x3F));
  }
  return text;
}

TEST(RegistryRows, AreThoseOfTheListsWrittenOut) {
  std::filesystem::path const folder = SIVANE_REGISTRY_LISTS;
  if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no lists beside the repository";
  std::size_t compared = 0;
  for (Registry const& registry : registries()) {
    std::ifstream in(folder / (registry.name + ".tsv"), std::ios::binary);
    std::string line;
    for (auto const& [id, name] : registry.rows) {
      ASSERT_TRUE(std::getline(in, line)) << registry.name;
      std::size_t const tab = line.find('\t');
      ASSERT_EQ(std::stoul(line.substr(0, tab), nullptr, 16), id) << registry.name << ": " << line;
      ASSERT_EQ(line.substr(tab + 1), utf8(name)) << registry.name;
      ++compared;
    }
    EXPECT_FALSE(std::getline(in, line)) << registry.name << ": " << line;
  }
  EXPECT_EQ(compared, 17985u);
}

}  // namespace
}  // namespace sivane::testing
