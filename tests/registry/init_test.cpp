// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The only test of its program, since nothing closes the registries again.
#include <gtest/gtest.h>
#include <sivane/registry/registry.h>

#include <thread>

#include "count.h"
#include "registries.h"

namespace sivane::testing {
namespace {

/// Whether every row's id has a name; whether none has.
std::pair<bool, bool> all_and_none_are_named() {
  bool all = true, none = true;
  for (Registry const& registry : registries()) {
    for (auto const& row : registry.rows) {
      bool const named = registry.look_up(static_cast<int>(row.first)) != std::string("<unknown>");
      all = all && named;
      none = none && !named;
    }
  }
  return {all, none};
}

TEST(RegistryInit, OpensEveryLookupTakesNoMemoryAndMayBeCalledByThreadsAtOnce) {
  EXPECT_EQ(all_and_none_are_named(), std::pair(false, true));
  EXPECT_EQ(allocations_of([] { init(); }), 0u);
  std::vector<std::thread> threads;
  for (int i = 0; i < 3; ++i) {
    threads.emplace_back([] {
      init();
      EXPECT_EQ(all_and_none_are_named(), std::pair(true, false));
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace sivane::testing
