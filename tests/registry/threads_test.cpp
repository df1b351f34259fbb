// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/registry/registry.h>

#include <thread>

#include "registries.h"

namespace sivane::testing {
// The threads race for the first `init`; each has it behind itself when it looks names up.
TEST(RegistryThreads, LookUpTheSameNames) {
  std::vector<std::size_t> known(4);
  std::vector<std::thread> threads;
  for (std::size_t& rows : known) {
    threads.emplace_back([&rows] {
      init();
      rows = known_rows();
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(known, std::vector<std::size_t>(4, 17985));
}

}  // namespace sivane::testing
