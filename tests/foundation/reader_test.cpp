// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The bounded reader, and the error that it throws.
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/reader.h>

#include <tuple>
#include <type_traits>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {
namespace {

constexpr char const* no_text = nullptr;

TEST(Error, HoldsCodeAndText) {
  for (auto const& [made, code, text] :
       {std::tuple(error("x"), -1, "x"),
        {error(no_text), -1, ""},
        {error(error::syntax_error, 0x12345678u), 2, ""},
        {error(error::length_error, "Pat parse error"), 3, "Pat parse error"},
        {error(error::length_error, no_text), 3, ""}}) {
    error copy("other");
    copy = made;
    EXPECT_EQ(copy.code, code);
    EXPECT_STREQ(copy.what(), text);
    EXPECT_EQ(copy.text, text);
  }
  EXPECT_EQ(error(error::syntax_error, 0x12345678u).value, 0x12345678u);
  EXPECT_EQ(error(error::syntax_error).value, 0xFFFFFFFF);
  EXPECT_EQ(error("x").value, 0xFFFFFFFF);
}

// A handler for std::exception does not see it.
static_assert(std::is_base_of_v<std::exception, error> && !std::is_convertible_v<error*, std::exception*>);

constexpr Failure named{error::length_error, "named"};

TEST(Reader, EveryFieldWidthAtEveryOffset) {
  HeapBlock const block(hex("C9 63 5A 0F B7"));
  std::uint64_t const all = 0xC9635A0FB7;
  for (int offset = 0; offset < 8; ++offset) {
    for (int width = 0; width <= 31; ++width) {
      Reader reader = Reader::within(block.data(), block.size());
      reader.skip_bits(offset);
      std::uint64_t const expected = all >> (40 - offset - width) & ((1ull << width) - 1);
      EXPECT_EQ(static_cast<std::uint64_t>(reader.bits(width)), expected) << offset << ' ' << width;
      EXPECT_EQ(reader.left(), (40 - offset - width) / 8);
    }
  }
}

TEST(Reader, SizesBelowZeroCountAsNone) {
  HeapBlock const block(hex("41"));
  Reader reader = Reader::within(block.data(), 1);
  EXPECT_TRUE(reader.string(-1).empty() && reader.bytes(-1).empty());
  EXPECT_FALSE(reader.loop(-1, named).more() || Reader::within(block.data(), -1).more());
  EXPECT_EQ(reader.left(), 1);
}

TEST(Reader, FieldsMayPassItsEndButNotItsLimitAndAFailedReadTakesNoBytes) {
  HeapBlock const block(hex("01 02 03 04"));
  Reader reader(block.data(), 1, 4, named);
  EXPECT_EQ(reader.u16(), 0x0102);
  EXPECT_TRUE(reader.past_end());
  EXPECT_EQ(reader.rest_as_string(), "");
  EXPECT_TRUE(throws([&] { reader.need_whole(1, {error::syntax_error}); }, error::syntax_error, ""));
  EXPECT_TRUE(throws([&] { reader.u32(); }, error::length_error, "named"));
  EXPECT_EQ(reader.u16(), 0x0304);
}

TEST(Reader, GivesADescriptorThatTheLimitHolds) {
  HeapBlock const block(hex("4D 01 AA BB 00 05"));
  Reader reader = Reader::within(block.data(), block.size());
  Reader body = reader.descriptor().body(named);
  EXPECT_EQ(body.left(), 1);
  EXPECT_EQ(body.bits(24), 0xAABB00);
  EXPECT_EQ(reader.descriptor().tag(), 0xBB);
  EXPECT_EQ(reader.consumed(), 5);
  EXPECT_TRUE(throws([&] { reader.descriptor(); }, "too little data"));
  EXPECT_EQ(Reader::within(block.data(), 3).descriptor().length(), 1);
  EXPECT_TRUE(throws([&] { Reader::within(block.data(), 2).descriptor(); }, "too little data"));
}

}  // namespace
}  // namespace sivane::testing
