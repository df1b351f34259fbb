// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The bounded reader, and the error that it throws.
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/reader.h>

#include <type_traits>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {
namespace {

constexpr char const* no_text = nullptr;

TEST(Error, HoldsCodeAndText) {
  struct Case {
    error made;
    int code;
    char const* text;
  };
  for (Case const& c : {Case{error("x"), -1, "x"},
                        {error(no_text), -1, ""},
                        {error(error::syntax_error, 0x12345678u), 2, ""},
                        {error(error::length_error, "Pat parse error"), 3, "Pat parse error"},
                        {error(error::length_error, no_text), 3, ""}}) {
    error copy("other");
    copy = c.made;
    EXPECT_EQ(copy.code, c.code);
    EXPECT_STREQ(copy.what(), c.text);
    EXPECT_EQ(copy.text, c.text);
  }
  EXPECT_EQ(error(error::syntax_error, 0x12345678u).value, 0x12345678u);
  EXPECT_EQ(error(error::syntax_error).value, 0xFFFFFFFF);
  EXPECT_EQ(error("x").value, 0xFFFFFFFF);
}

// A handler for std::exception does not see it.
static_assert(std::is_base_of_v<std::exception, error> && !std::is_convertible_v<error*, std::exception*>);

constexpr Failure named{error::length_error, "named"};
constexpr Failure code_alone{error::syntax_error};

template <class Action>
::testing::AssertionResult fails_named(Action action) {
  return throws(action, error::length_error, "named");
}

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

TEST(Reader, FailsAtItsLimitForEveryShorterBlock) {
  auto const read_all = [](Reader reader) {
    reader.u8();
    reader.u16();
    reader.u32();
    char code[4];
    reader.code(code);
    reader.bcd({10, 1});
    reader.string(2);
    reader.bytes(1);
    reader.raw(1);
  };
  for (int size = 0; size <= 15; ++size) {
    HeapBlock const block(Bytes(static_cast<std::size_t>(size), 0x11));
    auto const read = [&] { read_all({block.data(), size, size, named}); };
    EXPECT_EQ(fails_named(read), size < 15) << size;
  }
}

TEST(Reader, AFailedReadTakesNoBytes) {
  HeapBlock const block(hex("01 02"));
  for (auto const& [failure, text] : {std::pair(too_little_data, "too little data"), {code_alone, ""}}) {
    Reader reader = Reader::within(block.data(), block.size(), failure);
    EXPECT_TRUE(throws([&] { reader.u32(); }, failure.code, text));
    EXPECT_EQ(reader.u16(), 0x0102);
  }
}

TEST(Reader, FieldsMayPassItsEndButNotItsLimit) {
  HeapBlock const block(hex("01 02 03 04"));
  Reader reader(block.data(), 1, 4, named);
  EXPECT_EQ(reader.u16(), 0x0102);
  EXPECT_TRUE(reader.past_end());
  EXPECT_EQ(reader.rest_as_string(), "");
  EXPECT_TRUE(throws([&] { reader.need(1, code_alone); }, error::syntax_error, ""));
  EXPECT_TRUE(throws([&] { reader.need_whole(1, code_alone); }, error::syntax_error, ""));
  EXPECT_EQ(reader.u16(), 0x0304);
  EXPECT_TRUE(fails_named([&] { reader.flag(); }));
}

TEST(Reader, ReadersOfAPartShareTheLimitAndALoopMayClaimMore) {
  HeapBlock const block(hex("01 02 03 04 05"));
  Reader reader = Reader::within(block.data(), block.size());
  reader.u8();
  auto const check = [](Reader part, int size) {
    EXPECT_EQ(part.left(), size);
    EXPECT_EQ(part.u32(), 0x02030405u);
    EXPECT_EQ(part.past_end(), size < 4);
    EXPECT_TRUE(fails_named([&] { part.u8(); }));
  };
  check(reader.loop(2, named), 2);
  check(reader.loop(99, named), 99);
  check(reader.sub(2, named), 2);
  EXPECT_EQ(reader.consumed(), 3);
  EXPECT_TRUE(fails_named([&] { reader.sub(3, named); }));
  EXPECT_EQ(reader.sub(2, named).rest(), (Bytes{4, 5}));
}

TEST(Reader, EachDescriptorMayRunOverTheLoopButNotOverTheLimit) {
  HeapBlock const block(hex("52 01 11 70 02 22 33 FF"));
  struct Case {
    int size;
    bool exact;
    std::vector<int> tags;
  };
  for (Case const& c : {Case{0, true, {}},
                        {1, false, {0x52}},
                        {3, true, {0x52}},
                        {4, false, {0x52, 0x70}},
                        {7, true, {0x52, 0x70}}}) {
    Reader reader = Reader::within(block.data(), block.size());
    Reader again = reader;
    std::vector<int> tags;
    auto const take = [&](DescriptorBytes d) { tags.push_back(d.tag()); };
    EXPECT_EQ(fails_named([&] { again.each_descriptor(c.size, named, take, LoopEnd::exact); }), !c.exact);
    tags.clear();
    reader.each_descriptor(c.size, named, take);
    EXPECT_EQ(tags, c.tags);
    EXPECT_EQ(reader.consumed(), c.size);
  }
  Reader reader = Reader::within(block.data(), block.size());
  EXPECT_TRUE(fails_named([&] { reader.each_descriptor(8, named, [](DescriptorBytes) {}); }));
}

TEST(DescriptorBytes, ReadToTheEndOfTheSectionOrOfABarePointersOwnLength) {
  HeapBlock const block(hex("4D 01 AA BB 05"));
  Reader section = Reader::within(block.data(), block.size());
  Reader body = section.descriptor().body(named);
  EXPECT_EQ(body.left(), 1);
  EXPECT_EQ(body.bits(24), 0xAABB05);
  EXPECT_TRUE(fails_named([&] { body.u8(); }));
  EXPECT_EQ(section.consumed(), 3);
  body = DescriptorBytes(block.data()).body(named);
  EXPECT_EQ(body.u8(), 0xAA);
  EXPECT_TRUE(fails_named([&] { body.u8(); }));
  for (int const size : {0, 1}) {
    EXPECT_TRUE(throws([&] { DescriptorBytes(block.data(), block.data() + size); }, "too little data"));
  }
  EXPECT_TRUE(
      throws([&] { DescriptorBytes(block.data(), block.data() + 2).body().rest(); }, "too little data"));
}

}  // namespace
}  // namespace sivane::testing
