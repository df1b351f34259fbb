// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/crc.h>

#include "heap_block.h"
#include "plain_bytes.h"

namespace sivane::testing {
namespace {

TEST(Crc, OfExactlyTheBytesOfABlock) {
  EXPECT_EQ(slow_crc(hex("31 32 33 34 35 36 37 38 39")), 0x0376E6E7u);
  for (std::size_t size = 0; size <= 200; ++size) {
    Bytes const bytes = noise(size);
    ASSERT_EQ(crc_register(HeapBlock(bytes).data(), size), slow_crc(bytes)) << size;
  }
}

TEST(Crc, IsTheSameOnEveryPathAtEveryOffset) {
  constexpr std::size_t longest = 5000;
  if (!crc::folding_works()) GTEST_LOG_(INFO) << "no folding on this processor: slicing alone is compared";
  for (std::size_t offset = 0; offset < 16; ++offset) {
    Bytes const bytes = noise(offset + longest);
    unsigned char const* const data = bytes.data() + offset;
    std::uint32_t bitwise = 0xFFFFFFFF;
    for (std::size_t size = 0; size <= longest; ++size) {
      ASSERT_EQ(crc::by_slicing(0xFFFFFFFF, data, size), bitwise) << offset << ' ' << size;
      if (size >= crc::folding_minimum && crc::folding_works()) {
        ASSERT_EQ(crc::by_folding(0xFFFFFFFF, data, size), bitwise) << offset << ' ' << size;
      }
      if (size < longest) bitwise = slow_crc({data[size]}, bitwise);
    }
  }
}

}  // namespace
}  // namespace sivane::testing
