// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/registry/codes.h>

#include <string>

namespace sivane::testing {
namespace {

std::string text(char const* name) { return name == nullptr ? "-" : name; }

// The last row of each table and what stands behind it: a row too many or too few moves them.
TEST(Codes, RowsStandWhereTheirValuesAre) {
  EXPECT_EQ(text(stream_type_name(0x24)), "HEVC video");
  EXPECT_EQ(text(stream_type_name(0x36)), "LCEVC enhancement");
  EXPECT_EQ(text(stream_type_name(0x7F)), "IPMP");
  EXPECT_EQ(text(service_type_name(0x19)), "H.264/AVC HD digital television service");
  EXPECT_EQ(text(service_type_name(0x22)), "AVS3 digital television service");
  EXPECT_EQ(text(genre_name(0x4, 0xB)), "martial sports");
  EXPECT_EQ(text(genre_name(0xC, 0x0)), "adult");
  EXPECT_EQ(text(component_coding_name(5, 0xF, 0x0B)), "H.264/AVC video");
  EXPECT_EQ(text(component_coding_name(9, 0, 0x04)), "HEVC video");
}

TEST(Codes, SecondNibblesAndTypesDecide) {
  EXPECT_EQ(text(genre_name(0x2, 0x7)), "news/current affairs");  // reserved: the group's
  EXPECT_EQ(text(genre_name(0xB, 0x3)), "live broadcast");
  EXPECT_EQ(text(component_coding_name(4, 0xF, 0x7F)), "AC-3 audio");
  EXPECT_EQ(text(component_coding_name(4, 0xF, 0x80)), "enhanced AC-3 audio");
}

TEST(Codes, WhatIsReservedOrOutsideHasNoName) {
  for (int const value : {-1, 0, 0x26, 0x37, 0x80, 0x100})
    EXPECT_EQ(stream_type_name(value), nullptr) << value;
  for (int const value : {-1, 0, 0x09, 0x12, 0x23, 0xFF})
    EXPECT_EQ(service_type_name(value), nullptr) << value;
  for (int const value : {-1, 0x0, 0xD, 0xF, 0x10}) EXPECT_EQ(genre_name(value, 0), nullptr) << value;
  EXPECT_EQ(genre_name(0x1, 0xF), nullptr);
  EXPECT_EQ(genre_name(0xB, 0x6), nullptr);
  for (int const value : {-1, 0, 9, 0xB}) EXPECT_EQ(component_coding_name(value, 0xF, 1), nullptr) << value;
}

}  // namespace
}  // namespace sivane::testing
