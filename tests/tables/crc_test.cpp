// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/crc.h>

#include <random>

#include "heap_block.h"

namespace sivane {
namespace {

using testing::Bytes;
using testing::HeapBlock;
using testing::operator+;

Bytes random_bytes(std::size_t size) {
  std::mt19937 random(static_cast<unsigned int>(size));
  Bytes bytes(size);
  for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random());
  return bytes;
}

TEST(Crc, AgreesWithKnownValues) {
  const std::string digits = "123456789";
  EXPECT_EQ(crc_register(reinterpret_cast<unsigned char const*>(digits.data()), 9), 0x0376E6E7u);
  EXPECT_EQ(crc_register(nullptr, 0), 0xFFFFFFFFu);
}

TEST(Crc, AgreesWithTheSlowWayForEveryLengthAndAlignment) {
  for (std::size_t alignment = 0; alignment < 16; ++alignment) {
    for (std::size_t size = 0; size <= 100; ++size) {
      const Bytes bytes = random_bytes(size);
      const HeapBlock block(Bytes(alignment) + bytes);
      ASSERT_EQ(crc_register(block.data() + alignment, size), testing::slow_crc(bytes))
          << alignment << ' ' << size;
    }
  }
  const Bytes largest = random_bytes(4098);
  EXPECT_EQ(crc_register(HeapBlock(largest).data(), 4098), testing::slow_crc(largest));
}

TEST(Crc, IsZeroOverASectionWithItsCrc) {
  const Bytes pat = testing::make_pat({{1, 0x100}});
  EXPECT_EQ(crc_register(pat.data(), pat.size()), 0u);
}

}  // namespace
}  // namespace sivane
