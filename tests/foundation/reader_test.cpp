// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The bounded reader, and the error that it throws.
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/reader.h>

#include <memory>
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
                        {error(error::item_length_error), 0, ""},
                        {error(error::syntax_error, 0x12345678u), 2, ""},
                        {error(error::length_error, "Pat parse error"), 3, "Pat parse error"},
                        {error(error::length_error, no_text), 3, ""}}) {
    EXPECT_EQ(c.made.code, c.code);
    EXPECT_STREQ(c.made.what(), c.text);
    EXPECT_EQ(c.made.text, c.text);
  }
  EXPECT_EQ(error(error::syntax_error).value, 0xFFFFFFFF);
}

TEST(Error, CopiesOutliveTheirOriginal) {
  std::string const text = "a text that is too long for the string's own storage";
  auto original = std::make_unique<error>(error::syntax_error, 0x80000001u);
  original->text = text;
  std::vector<error> copies{*original, error("other")};
  copies[1] = *original;
  original.reset();
  for (error const& copy : copies) {
    EXPECT_EQ(copy.code, error::syntax_error);
    EXPECT_EQ(copy.value, 0x80000001u);
    EXPECT_EQ(copy.what(), text);
  }
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

TEST(Reader, ReadsEveryForm) {
  HeapBlock const block(hex("80 7E 81 FF FF FF FE FF FF FF FE 65 6E 67 41 00 42 12 3F 02 43 44"));
  Reader reader = Reader::within(block.data(), block.size());
  EXPECT_TRUE(reader.flag());
  EXPECT_FALSE(reader.flag());
  reader.skip_bits(6);
  EXPECT_EQ(reader.u16(), 0x7E81);
  EXPECT_EQ(reader.u32(), 0xFFFFFFFEu);
  EXPECT_EQ(reader.i32(), -2);
  char code[4];
  reader.code(code);
  EXPECT_STREQ(code, "eng");
  EXPECT_EQ(reader.string(3), std::string("A\0B", 3));
  EXPECT_EQ(reader.bcd({100, 10, 1, 0.5}), 100 + 20 + 3 + 7.5);
  EXPECT_EQ(reader.prefixed_string(), "CD");
  EXPECT_EQ(reader.string(-1), "");
  EXPECT_TRUE(reader.bytes(-1).empty());
  EXPECT_FALSE(reader.more() || reader.past_end());
  EXPECT_EQ(Reader::within(block.data(), -1).left(), 0);
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

TEST(Reader, FailuresTakeEveryFormAndTakeNoBytes) {
  HeapBlock const block(hex("01 02"));
  struct Case {
    Failure failure;
    error::errorcode_enum code;
    char const* text;
  };
  for (Case const& c : {Case{too_little_data, error::no_errorcode, "too little data"},
                        {named, error::length_error, "named"},
                        {code_alone, error::syntax_error, ""}}) {
    Reader reader = Reader::within(block.data(), block.size(), c.failure);
    EXPECT_TRUE(throws([&] { reader.u32(); }, c.code, c.text));
    EXPECT_EQ(reader.u16(), 0x0102);
  }
  for (Failure const failure : {too_little_data, code_alone}) {
    EXPECT_EQ(caught_error([&] { raise(failure); })->value, 0xFFFFFFFFu);
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

TEST(Reader, SubReadersShareTheLimit) {
  HeapBlock const block(hex("01 02 03 04 05"));
  Reader reader = Reader::within(block.data(), block.size());
  reader.u8();
  Reader sub = reader.sub(2, named);
  EXPECT_EQ(reader.left(), 2);
  EXPECT_EQ(sub.left(), 2);
  EXPECT_EQ(sub.u32(), 0x02030405u);
  EXPECT_TRUE(fails_named([&] { sub.u8(); }));
  EXPECT_TRUE(throws([&] { reader.sub(3, named); }, "too little data"));
  EXPECT_EQ(reader.sub(2, named).rest(), (Bytes{4, 5}));
}

TEST(Reader, LoopsShareTheLimitAndMayClaimMore) {
  HeapBlock const block(hex("01 02 03 04 05"));
  Reader reader = Reader::within(block.data(), block.size());
  reader.u8();
  Reader loop = reader.loop(2, named);
  EXPECT_EQ(loop.left(), 2);
  EXPECT_EQ(loop.u32(), 0x02030405u);
  EXPECT_TRUE(loop.past_end());
  EXPECT_TRUE(fails_named([&] { loop.u8(); }));
  Reader claims_more = reader.loop(99, named);
  EXPECT_EQ(claims_more.left(), 99);
  EXPECT_EQ(claims_more.u32(), 0x02030405u);
  EXPECT_TRUE(claims_more.more());
  EXPECT_TRUE(fails_named([&] { claims_more.u8(); }));
  EXPECT_FALSE(reader.loop(-1, named).more());
  EXPECT_EQ(reader.consumed(), 1);
}

TEST(Reader, EachDescriptorMayRunOverTheLoopButNotOverTheLimit) {
  HeapBlock const block(hex("00 52 01 11 70 02 22 33 FF"));
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
    reader.u8();
    std::vector<int> tags;
    EXPECT_EQ(reader.each_descriptor(c.size, named, [&](DescriptorBytes d) { tags.push_back(d.tag()); }),
              c.exact);
    EXPECT_EQ(tags, c.tags);
    EXPECT_EQ(reader.consumed(), 1 + c.size);
  }
  Reader reader = Reader::within(block.data() + 1, block.size() - 1);
  int seen = 0;
  EXPECT_TRUE(fails_named([&] { reader.each_descriptor(8, named, [&](DescriptorBytes) { ++seen; }); }));
  EXPECT_EQ(seen, 2);
  // What stands behind a descriptor in the section is its own to read.
  reader.each_descriptor(3, named, [](DescriptorBytes d) { EXPECT_EQ(d.body().u32(), 0x11700222u); });
}

TEST(Reader, ReadsWholeItemsUpToItsEnd) {
  struct Pair {
    explicit Pair(Reader& r) : first(r.u8()), second(r.u8()) {}
    int first, second;
  };
  HeapBlock const block(hex("01 02 03 04 05 06 07"));
  auto const of = [&](int size) { return Reader(block.data(), size, 7, code_alone); };
  EXPECT_EQ(of(0).numbers<int>(16, named), std::vector<int>());
  EXPECT_EQ(of(4).numbers<int>(16, named), (std::vector<int>{0x0102, 0x0304}));
  EXPECT_TRUE(fails_named([&] { of(5).numbers<int>(16, named); }));
  EXPECT_EQ(of(4).records<Pair>(2, named).back().second, 4);
  EXPECT_TRUE(fails_named([&] { of(3).records<Pair>(2, named); }));
  EXPECT_EQ(of(6).walk<Pair>().size(), 3u);
  EXPECT_TRUE(throws([&] { of(5).walk<Pair>(); }, error::syntax_error, ""));
}

TEST(DescriptorBytes, ABarePointerIsBoundByItsLength) {
  HeapBlock const block(hex("4D 02 AA BB"));
  Reader body = DescriptorBytes(block.data()).body(named);
  EXPECT_EQ(body.u16(), 0xAABB);
  EXPECT_TRUE(fails_named([&] { body.u8(); }));
}

TEST(DescriptorBytes, InASectionItMayReadToItsEnd) {
  HeapBlock const block(hex("4D 01 AA BB 05 00 06"));
  Reader section = Reader::within(block.data(), block.size());
  Reader body = section.descriptor().body();
  EXPECT_EQ(body.left(), 1);
  EXPECT_EQ(body.u32(), 0xAABB0500u);
  body.u8();
  EXPECT_TRUE(throws([&] { body.u8(); }, "too little data"));
  EXPECT_EQ(section.consumed(), 3);
}

TEST(DescriptorBytes, FailsWhereTagLengthOrBodyLeaveTheSection) {
  HeapBlock const block(hex("4D 03 AA BB"));
  for (int const size : {0, 1}) {
    EXPECT_TRUE(throws([&] { DescriptorBytes(block.data(), block.data() + size); }, "too little data"));
  }
  Reader section(block.data(), 4, 4, named);
  EXPECT_TRUE(fails_named([&] { section.descriptor(); }));
  DescriptorBytes const cut(block.data(), block.data() + 4);
  EXPECT_TRUE(throws([&] { cut.body().rest(); }, "too little data"));
}

}  // namespace
}  // namespace sivane::testing
