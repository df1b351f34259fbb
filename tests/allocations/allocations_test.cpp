// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <utility>

#include "count.h"
#include "plain_bytes.h"

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

/// As docs/benchmarks.md states: none of its own for a descriptor, one for each text that does not fit into
/// its string, and what the block of a set and the vector of a class take to grow.
TEST(Allocations, OfADescriptorAreWhatItKeeps) {
  constexpr unsigned int count = 64, growths = 8;
  unsigned char const plain[] = {0x52, 0x01, 0x11};
  Bytes const text = make_descriptor(0x40, characters("a name of a network, too long for a string alone"));
  auto const fill = [](unsigned char const* descriptor) {
    return allocations_of([=] {
      DescriptorSet set;
      for (unsigned int i = 0; i < count; ++i) set.ParseDescriptor(descriptor);
    });
  };
  EXPECT_LE(fill(plain), growths);
  EXPECT_LE(fill(text.data()), count + growths);
  EXPECT_GE(fill(text.data()), count);
}

}  // namespace
}  // namespace sivane::testing
