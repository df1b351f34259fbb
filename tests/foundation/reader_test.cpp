// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/reader.h>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane {
namespace {

using testing::Bytes;
using testing::HeapBlock;
using testing::hex;
using testing::throws;

constexpr Failure named{error::length_error, "named"};
constexpr Failure code_alone{error::syntax_error};

TEST(Reader, TakesBitsAcrossBytes) {
  const HeapBlock block(hex("A5 C3 7E 81 FF FF FF FF 80 01"));
  Reader reader = Reader::within(block.data(), block.size());
  EXPECT_EQ(reader.bits(3), 0b101);
  EXPECT_EQ(reader.bits(10), 0b0010111000);
  EXPECT_FALSE(reader.flag());
  EXPECT_EQ(reader.consumed(), 1);
  EXPECT_EQ(reader.bits(0), 0);
  reader.skip_bits(1);
  EXPECT_TRUE(reader.flag());
  EXPECT_EQ(reader.u16(), 0x7E81);
  EXPECT_EQ(reader.u32(), 0xFFFFFFFFu);
  EXPECT_EQ(reader.left(), 2);
  EXPECT_EQ(reader.bits(1), 1);
  EXPECT_EQ(reader.left(), 1);
  EXPECT_TRUE(reader.more());
  EXPECT_EQ(reader.bits(15), 1);
  EXPECT_FALSE(reader.more());
  EXPECT_FALSE(reader.past_end());
}

TEST(Reader, EveryFieldWidthAtEveryOffset) {
  const HeapBlock block(hex("C9 63 5A 0F B7"));
  const std::uint64_t all = 0xC9635A0FB7;
  for (int offset = 0; offset < 8; ++offset) {
    for (int width = 1; width <= 31; ++width) {
      Reader reader = Reader::within(block.data(), block.size());
      reader.skip_bits(offset);
      const std::uint64_t expected = all >> (40 - offset - width) & ((1ull << width) - 1);
      EXPECT_EQ(static_cast<std::uint64_t>(reader.bits(width)), expected) << offset << ' ' << width;
    }
  }
}

TEST(Reader, FailsAtItsLimitForEveryShorterBlock) {
  const auto read_all = [](Reader reader) {
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
  const Bytes whole(15, 0x11);
  for (int size = 0; size < 15; ++size) {
    const HeapBlock block({whole.begin(), whole.begin() + size});
    EXPECT_TRUE(throws([&] { read_all(Reader::within(block.data(), block.size())); }, "too little data"));
    EXPECT_TRUE(throws([&] { read_all({block.data(), size, size, named}); }, error::length_error, "named"));
  }
  const HeapBlock block(whole);
  read_all(Reader::within(block.data(), block.size()));
}

TEST(Reader, FailuresTakeEveryForm) {
  const auto overrun = [](Failure failure) { return [=] { Reader(nullptr, 0, 0, failure).u8(); }; };
  EXPECT_TRUE(throws(overrun(too_little_data), "too little data"));
  EXPECT_TRUE(throws(overrun(named), error::length_error, "named"));
  EXPECT_TRUE(throws(overrun(code_alone), error::syntax_error, ""));
  EXPECT_EQ(testing::caught_error(overrun(code_alone))->value, 0xFFFFFFFFu);
}

TEST(Reader, AFailedReadTakesNothing) {
  const HeapBlock block(hex("01 02"));
  Reader reader = Reader::within(block.data(), block.size());
  EXPECT_TRUE(throws([&] { reader.u32(); }, "too little data"));
  EXPECT_EQ(reader.consumed(), 0);
  EXPECT_EQ(reader.u16(), 0x0102);
}

TEST(Reader, FieldsMayPassItsEndButNotItsLimit) {
  const HeapBlock block(hex("01 02 03 04"));
  Reader reader(block.data(), 1, 4, named);
  EXPECT_EQ(reader.left(), 1);
  EXPECT_EQ(reader.u16(), 0x0102);
  EXPECT_TRUE(reader.past_end());
  EXPECT_EQ(reader.left(), 0);
  EXPECT_TRUE(reader.rest().empty());
  EXPECT_EQ(reader.rest_as_string(), "");
  EXPECT_TRUE(throws([&] { reader.need(1, code_alone); }, error::syntax_error, ""));
  EXPECT_EQ(reader.u16(), 0x0304);
  EXPECT_TRUE(throws([&] { reader.flag(); }, error::length_error, "named"));
}

TEST(Reader, SubReadersShareTheLimit) {
  const HeapBlock block(hex("01 02 03 04 05"));
  Reader reader = Reader::within(block.data(), block.size());
  reader.u8();
  Reader sub = reader.sub(2, named);
  EXPECT_EQ(reader.left(), 2);
  EXPECT_EQ(sub.left(), 2);
  EXPECT_EQ(sub.u32(), 0x02030405u);
  EXPECT_TRUE(throws([&] { sub.u8(); }, error::length_error, "named"));
  EXPECT_TRUE(throws([&] { reader.sub(3, named); }, "too little data"));
  EXPECT_EQ(reader.sub(2, named).rest(), (Bytes{4, 5}));
  EXPECT_EQ(reader.sub(0, named).left(), 0);
}

TEST(Reader, ReadsCodesStringsAndDigits) {
  const HeapBlock block(hex("65 6E 67 41 00 42 12 3F"));
  Reader reader = Reader::within(block.data(), block.size());
  char code[4];
  reader.code(code);
  EXPECT_STREQ(code, "eng");
  EXPECT_EQ(reader.string(3), std::string("A\0B", 3));
  EXPECT_EQ(reader.bcd({100, 10, 1, 0.5}), 100 + 20 + 3 + 7.5);
  EXPECT_EQ(Reader::within(block.data(), -1).left(), 0);
}

TEST(Reader, ReadsWholeItemsUpToItsEnd) {
  const HeapBlock block(hex("01 02 03 04 05 06 07"));
  const auto numbers = [&](int size) { return Reader(block.data(), size, 7).numbers<int>(16, named); };
  EXPECT_EQ(numbers(0), std::vector<int>());
  EXPECT_EQ(numbers(4), (std::vector<int>{0x0102, 0x0304}));
  EXPECT_TRUE(throws([&] { numbers(5); }, error::length_error, "named"));

  struct Pair {
    explicit Pair(Reader& r) : first(r.u8()), second(r.u8()) {}
    int first, second;
  };
  EXPECT_EQ(Reader(block.data(), 4, 7).records<Pair>(2, named).back().second, 4);
  EXPECT_TRUE(
      throws([&] { Reader(block.data(), 3, 7).records<Pair>(2, named); }, error::length_error, "named"));
  EXPECT_EQ(Reader(block.data(), 6, 7, code_alone).walk<Pair>().size(), 3u);
  EXPECT_TRUE(throws([&] { Reader(block.data(), 5, 7, code_alone).walk<Pair>(); }, error::syntax_error, ""));

  Reader overrun(block.data(), 1, 7);
  overrun.u16();
  EXPECT_TRUE(throws([&] { overrun.need_whole(1, named); }, error::length_error, "named"));
}

TEST(DescriptorBytes, ABarePointerIsBoundByItsLength) {
  const HeapBlock block(hex("4D 02 AA BB"));
  const DescriptorBytes descriptor(block.data());
  EXPECT_EQ(descriptor.tag(), 0x4D);
  EXPECT_EQ(descriptor.length(), 2);
  Reader body = descriptor.body(named);
  EXPECT_EQ(body.u16(), 0xAABB);
  EXPECT_TRUE(throws([&] { body.u8(); }, error::length_error, "named"));
}

TEST(DescriptorBytes, InASectionItMayReadToItsEnd) {
  const HeapBlock block(hex("4D 01 AA BB 05 00 06"));
  Reader section = Reader::within(block.data(), block.size());
  const DescriptorBytes first = section.descriptor();
  Reader body = first.body();
  EXPECT_EQ(body.left(), 1);
  EXPECT_EQ(body.u32(), 0xAABB0500u);
  EXPECT_EQ(section.consumed(), 3);
  section.skip_bits(8);
  EXPECT_EQ(section.descriptor().length(), 0);
  EXPECT_TRUE(throws([&] { section.descriptor(); }, "too little data"));
}

TEST(DescriptorBytes, FailsWhereTagLengthOrBodyLeaveTheSection) {
  const HeapBlock block(hex("4D 03 AA BB"));
  for (const int size : {0, 1}) {
    EXPECT_TRUE(throws([&] { DescriptorBytes(block.data(), block.data() + size); }, "too little data"));
  }
  Reader section(block.data(), 4, 4, named);
  EXPECT_TRUE(throws([&] { section.descriptor(); }, error::length_error, "named"));
  const DescriptorBytes cut(block.data(), block.data() + 4);
  EXPECT_TRUE(throws([&] { cut.body().rest(); }, "too little data"));
}

}  // namespace
}  // namespace sivane
