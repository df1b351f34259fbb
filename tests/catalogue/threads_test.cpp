// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "eit_text.h"

namespace sivane::testing {
namespace {

/// The titles of many events in several tables of characters.
std::string run() {
  catalogue::Catalogue catalogue;
  for (int version = 0; version < 32; ++version) {
    add(catalogue,
        eit_text(
            {.version = version},
            event_text(version, R"(4D[ "deu" [05 "Z" FC "rich"] [] ] 4D[ "zho" [11 4E2D 6587] ["a"] ])")));
  }
  std::string titles;
  for (auto const& [key, event] : catalogue.events()) {
    for (catalogue::EventText const& text : event.texts) titles += text.language + text.title;
  }
  return titles;
}

TEST(Threads, EachWithItsOwnCatalogue) {
  std::vector<std::string> titles(4);
  std::vector<std::thread> threads;
  for (std::string& its_own : titles) threads.emplace_back([&its_own] { its_own = run(); });
  for (std::thread& thread : threads) thread.join();
  for (std::string const& its_own : titles) EXPECT_EQ(its_own, "deuZ\u00FCrichzho\u4E2D\u6587");
}

}  // namespace
}  // namespace sivane::testing
