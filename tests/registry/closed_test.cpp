// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The only test of its program, since nothing closes the registries again.
#include <gtest/gtest.h>
#include <sivane/registry/registry.h>

#include "count.h"
#include "registries.h"

namespace sivane::testing {
TEST(RegistryClosed, UntilInitWhichTakesNoMemory) {
  EXPECT_EQ(known_rows(), 0u);
  EXPECT_EQ(allocations_of([] {
              init();
              get_network_id(0x3001);
            }),
            0u);
  EXPECT_EQ(known_rows(), 17985u);
}

}  // namespace sivane::testing
