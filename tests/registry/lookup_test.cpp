// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/registry/registry.h>

#include <map>
#include <sstream>

#include "file_contents.h"
#include "registries.h"

namespace sivane::testing {
namespace {

/// FNV-1a of 64 bits over the rows written out: eight digits of the id, a tab, the name, a line feed.
std::string digest(Rows const& rows) {
  std::uint64_t hash = 0xCBF29CE484222325;
  char digits[17];
  for (auto const& [id, name] : rows) {
    std::snprintf(digits, sizeof digits, "%08x", id);
    for (char const c : digits + ('\t' + name) + '\n') {
      hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    }
  }
  std::snprintf(digits, sizeof digits, "%016lx", static_cast<unsigned long>(hash));
  return digits;
}

// A new row changes one line of the file: the one that the failure shows.
TEST(RegistryRows, AreCountedAndUnchanged) {
  std::ostringstream built;
  for (Registry const& registry : registries()) {
    built << registry.name << ' ' << registry.rows.size() << ' ' << digest(registry.rows) << '\n';
  }
  EXPECT_EQ(built.str(), contents(SIVANE_REGISTRY_ROWS));
}

TEST(RegistryLookup, FindsTheLastRowOfAnIdAndNoOther) {
  init();
  for (Registry const& registry : registries()) {
    std::map<std::uint32_t, std::string> names;
    for (auto const& [id, name] : registry.rows) names[id] = name;
    auto const check = [&](std::uint32_t id) {
      ASSERT_EQ(registry.look_up(static_cast<int>(id)), names.contains(id) ? names[id] : "<unknown>")
          << registry.name << ' ' << id;
    };
    for (std::uint32_t id = 0; id <= 0xFFFF; ++id) check(id);
    for (auto const& row : registry.rows) {
      for (std::uint32_t const change : {1u, 0x10000u, 0x80000000u}) check(row.first ^ change);
    }
  }
}

}  // namespace
}  // namespace sivane::testing
