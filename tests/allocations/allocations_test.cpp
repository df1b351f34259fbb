// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <utility>

#include "count.h"

namespace sivane::testing {
namespace {

TEST(Allocations, OfADescriptorSetAreForFilingAndCopyingNotForMoving) {
  unsigned char const descriptor[] = {0x52, 0x01, 0x11};
  DescriptorSet set;
  auto const move_about = [&] {
    DescriptorSet moved(std::move(set));
    set = std::move(moved);
  };
  auto const copy = [&] {
    DescriptorSet copied(set);
    set = copied;
  };
  EXPECT_EQ(allocations_of(move_about) + allocations_of(copy), 0u);  // it is empty
  EXPECT_GT(allocations_of([&] { set.ParseDescriptor(descriptor); }), 0u);
  EXPECT_GT(allocations_of(copy), 0u);
  EXPECT_EQ(allocations_of(move_about), 0u);
  EXPECT_EQ(set.get_stream_identifier_descriptors().size(), 1u);
}

}  // namespace
}  // namespace sivane::testing
