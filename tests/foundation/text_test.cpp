// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/multilingual_name.h>
#include <sivane/foundation/text.h>

#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane {
namespace {

using testing::HeapBlock;
using testing::hex;
using testing::throws;

std::string string_of(testing::Bytes const& bytes) { return {bytes.begin(), bytes.end()}; }

TEST(Text, DropsOneSelectorByteInFront) {
  struct Case {
    char const *field, *text;
  };
  for (const Case c : {Case{"00", ""},
                       {"01 05", ""},
                       {"01 41", "41"},
                       {"03 41 42 43", "41 42 43"},
                       {"03 10 00 02", "00 02"},
                       {"03 41 05 42", "41 05 42"},
                       {"02 05 05", "05"},
                       {"04 41 00 42 00", "41 00 42 00"},
                       {"02 E0 41", "E0 41"}}) {
    const HeapBlock field(hex(c.field));
    int used = -1;
    EXPECT_EQ(Text(field.data(), used), string_of(hex(c.text))) << c.field;
    EXPECT_EQ(used, field.size()) << c.field;
  }
}

TEST(Text, KnowsEverySelector) {
  for (int first = 0; first < 256; ++first) {
    const bool is_selector = first <= 0x06 || (first >= 0x0F && first <= 0x12) || first == 0x1F;
    const testing::Bytes data{static_cast<unsigned char>(first), 'A'};
    Text text;
    text.parse(2, data.data());
    EXPECT_EQ(text, string_of(is_selector ? testing::Bytes{'A'} : data)) << first;
  }
}

TEST(Text, LongestFieldFits) {
  testing::Bytes bytes(256, 'z');
  bytes[0] = 255;
  const HeapBlock field(bytes);
  int used = 0;
  EXPECT_EQ(Text(field.data(), used), std::string(255, 'z'));
  EXPECT_EQ(used, 256);
}

TEST(Text, AppendsToWhatItHolds) {
  const HeapBlock field(hex("02 05 41"));
  int used = 0;
  Text text(field.data(), used);
  text.parse(field.data(), used);
  text.parse(0, nullptr);
  text.parse(-1, nullptr);
  EXPECT_EQ(text, "AA");
}

TEST(Text, StaysInsideItsReader) {
  const HeapBlock field(hex("03 41 42"));
  Reader reader = Reader::within(field.data(), field.size());
  Text text;
  EXPECT_TRUE(throws([&] { text.parse(reader); }, "too little data"));
}

TEST(LengthPrefixedString, TakesTheBytesAsTheyCome) {
  for (char const* const field : {"00", "01 05", "03 10 00 41"}) {
    const HeapBlock block(hex(field));
    int used = -1;
    const LengthPrefixedString string(block.data(), 0, used);  // its size is not looked at
    EXPECT_EQ(string.length, block.size() - 1);
    EXPECT_EQ(string.value, string_of(hex(field)).substr(1));
    EXPECT_EQ(used, block.size());
  }
}

TEST(LengthPrefixedString, DumpsTwoLinesInTheStreamsBase) {
  const HeapBlock block(hex("0B 41 42 00 43 44 45 46 47 48 49 50"));
  int used = 0;
  std::ostringstream os;
  os << std::hex;
  LengthPrefixedString(block.data(), block.size(), used).dump_state("parameter_info", os);
  EXPECT_EQ(os.str(), "parameter_info_length: b\nparameter_info: AB\n");
}

TEST(MultilingualNameInfo, FitsInItsLoopOrFails) {
  const testing::Bytes record = hex("65 6E 67 03 05 42 43 FF");
  for (int size = -1; size <= 8; ++size) {
    const HeapBlock loop({record.begin(), record.begin() + std::max(size, 0)});
    int used = -1;
    const auto build = [&] { return MultilingualNameInfo(loop.data(), size, used); };
    if (size < 4) {
      EXPECT_TRUE(throws(build, error::length_error, "multilingual_name_info_descriptor")) << size;
    } else if (size < 7) {
      EXPECT_TRUE(throws(build, error::length_error, "multilingual_name_info_descriptor:2")) << size;
    } else {
      EXPECT_EQ(build().name,
                "\x05"
                "BC");
      EXPECT_EQ(used, 7);
    }
  }
}

TEST(MultilingualNameInfo, DumpsThreeLines) {
  const HeapBlock loop(hex("64 65 75 0A 41 42 43 44 45 46 47 48 49 4A"));
  int used = 0;
  std::ostringstream os;
  os << std::hex;
  MultilingualNameInfo(loop.data(), loop.size(), used)._dump_state(os);
  EXPECT_EQ(os.str(),
            "MultilingualNameInfo::ISO_639_language_code: deu\n"
            "MultilingualNameInfo::text_len: a\n"
            "MultilingualNameInfo::name: ABCDEFGHIJ\n");
}

}  // namespace
}  // namespace sivane
