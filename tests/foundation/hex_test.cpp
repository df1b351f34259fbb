// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/hex.h>

#include <algorithm>

#include "heap_block.h"

namespace sivane {
namespace {

using Bytes = std::vector<unsigned char>;
using Ints = std::vector<int>;
using Ulongs = std::vector<unsigned long>;

TEST(Bin2str, AppendsLowerCaseGroups) {
  std::string text = "<";
  const Bytes bytes{0x0A, 0xFF};
  bin2str(bytes, text);
  bin2str(bytes.data(), text, 2);
  bin2str(bytes.data(), text, 0);
  EXPECT_EQ(text, "<0aff0aff");
  bin2str(Ints{0, -1, 0x12AB}, text);
  bin2str(Ulongs{0xFFFFFFFF, 1}, text);
  EXPECT_EQ(text, "<0aff0aff00000000ffffffff000012abffffffff00000001");
}

TEST(Str2bin, AppendsWholeGroupsOfEitherCase) {
  Bytes bytes{7};
  str2bin("0AfF", bytes);
  EXPECT_EQ(bytes, (Bytes{7, 0x0A, 0xFF}));
  Ints ints{7};
  str2bin("ffffffff000012AB", ints);
  EXPECT_EQ(ints, (Ints{7, -1, 0x12AB}));
  Ulongs ulongs{7};
  str2bin("ffffffff80000000", ulongs);
  EXPECT_EQ(ulongs, (Ulongs{7, 0xFFFFFFFFul, 0x80000000ul}));
}

TEST(Str2bin, LeavesTheTargetAloneForPartialGroups) {
  for (char const* const text : {"", "a", "abc", "0123456", "012345678"}) {
    Ints ints{7};
    Ulongs ulongs{7};
    str2bin(text, ints);
    str2bin(text, ulongs);
    EXPECT_EQ(ints, Ints{7}) << text;
    EXPECT_EQ(ulongs, Ulongs{7}) << text;
    if (std::string(text).size() % 2 == 0) continue;
    Bytes bytes{7};
    unsigned char room = 7;
    str2bin(text, bytes);
    str2bin(text, &room, 1);
    EXPECT_EQ(bytes, Bytes{7}) << text;
    EXPECT_EQ(room, 7) << text;
  }
}

TEST(Str2bin, StopsAtTheRoomOrTheTextsEnd) {
  for (int room = 0; room <= 7; ++room) {
    const testing::HeapBlock block(Bytes(static_cast<std::size_t>(room), 0xEE));
    str2bin("0102030405", block.data(), room);
    for (int i = 0; i < room; ++i) EXPECT_EQ(block.data()[i], i < 5 ? i + 1 : 0xEE) << room;
  }
  unsigned char untouched = 7;
  str2bin("01", &untouched, -1);
  EXPECT_EQ(untouched, 7);
}

TEST(Str2bin, TakesBadDigitsWithoutHarm) {
  Bytes bytes;
  Ints ints;
  str2bin("zz g-1 0x", bytes);
  str2bin("-+ x\xFF\x80..", ints);
  EXPECT_LE(bytes.size(), 4u);
  EXPECT_EQ(ints.size(), 1u);
}

}  // namespace
}  // namespace sivane
