// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/pat.h>

#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane {
namespace {

using testing::Bytes;
using testing::HeapBlock;
using testing::make_pat;
using testing::throws;

Pat parsed(Bytes const& section) {
  Pat pat;
  pat.Parse(HeapBlock(section).data());
  return pat;
}

TEST(Pat, ReadsItsProgramsInOrder) {
  const Pat pat = parsed(make_pat({{0, 0x10}, {0xFFFF, 0x1FFF}, {1, 0}}, {.context_id = 0x1234}));
  EXPECT_TRUE(pat.valid);
  EXPECT_EQ(pat.context_id, 0x1234);
  ASSERT_EQ(pat.get_program_info_size(), 3u);
  const int expected[][2] = {{0, 0x10}, {0xFFFF, 0x1FFF}, {1, 0}};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(pat.get_program_info(i).program_number, expected[i][0]);
    EXPECT_EQ(pat.get_program_info(i).program_map_pid, expected[i][1]);
  }
  EXPECT_EQ(Pat().get_program_info_size(), 0u);
  EXPECT_FALSE(Pat().valid);
}

TEST(Pat, IgnoresTheReservedBits) {
  for (int reserved = 0; reserved < 4; ++reserved) {
    Bytes section = make_pat({{1, 0x100}}, {.reserved_header = reserved});
    section[10] = static_cast<unsigned char>((section[10] & 0x1F) | reserved << 5);
    testing::repair_crc(section);
    EXPECT_EQ(parsed(section).get_program_info(0).program_map_pid, 0x100);
  }
}

TEST(Pat, EverySectionLength) {
  for (int length = 0; length <= 30; ++length) {
    Bytes section(static_cast<std::size_t>(length) + 3, 0xE1);
    section[0] = 0;
    section[1] = 0xB0;
    section[2] = static_cast<unsigned char>(length);
    if (length >= 4) testing::repair_crc(section);
    const HeapBlock block(section);
    Pat pat;
    const auto parse = [&] { pat.Parse(block.data()); };
    if (length < 4) {  // no section so short has a right CRC
      EXPECT_TRUE(throws(parse, "crc error")) << length;
    } else if (length == 4) {  // byte 7 of the header is missing
      EXPECT_TRUE(throws(parse, "too little data"));
    } else if (length % 4 != 1) {
      EXPECT_TRUE(throws(parse, error::length_error, "Pat parse error")) << length;
      EXPECT_EQ(pat.section_length, length);
      EXPECT_FALSE(pat.valid);
    } else {
      parse();
      EXPECT_EQ(static_cast<int>(pat.get_program_info_size()), std::max(0, (length - 9) / 4)) << length;
      EXPECT_TRUE(pat.valid);
    }
  }
}

TEST(Pat, LargestSection) {
  const std::vector<testing::Program> programs(1021, {7, 0x20});
  EXPECT_EQ(parsed(make_pat(programs)).get_program_info_size(), 1021u);
}

TEST(Pat, RefusesOtherTablesAndFramesThatFail) {
  for (const int id : {1, 2, 0x42, 0xFF}) {
    EXPECT_TRUE(throws([&] { parsed(make_pat({}, {.table_id = id})); }, "invalid table id"));
  }
  EXPECT_TRUE(throws([] { parsed(make_pat({}, {.syntax_indicator = 0})); }, error::syntax_error, ""));
}

TEST(Pat, ParseAddsUntilReset) {
  Pat pat = parsed(make_pat({{1, 0x100}}));
  const HeapBlock more(make_pat({{2, 0x200}, {3, 0x300}}, {.version_number = 4}));
  pat.Parse(more.data(), static_cast<std::size_t>(more.size()));
  EXPECT_EQ(pat.get_program_info_size(), 3u);
  EXPECT_EQ(pat.version_number, 4);
  EXPECT_TRUE(
      throws([&] { pat.Parse(more.data(), static_cast<std::size_t>(more.size()) - 1); }, "too little data"));
  EXPECT_EQ(pat.get_program_info_size(), 3u);
  EXPECT_TRUE(pat.valid);

  const Pat copy = pat;
  pat.reset();
  EXPECT_EQ(pat.get_program_info_size(), 0u);
  EXPECT_FALSE(pat.valid);
  EXPECT_EQ(pat.version_number, 4);
  EXPECT_EQ(copy.get_program_info_size(), 3u);
  pat.Parse(more.data());
  EXPECT_EQ(pat.get_program_info_size(), 2u);
}

TEST(Pat, DumpsLineForLine) {
  Pat pat = parsed(make_pat({{0, 0x10}, {0xABCD, 0x1FFF}},
                            {.context_id = 0x1A, .version_number = 3, .last_section_number = 0x1B}));
  pat.crc32 = 0xFEED;
  std::ostringstream os;
  pat.dump_state(os);
  EXPECT_EQ(os.str(),
            "table_id 00\nsection_length 0011\ncontext_id 001A\nversion_number 03\nsection_number 00\n"
            "last_section_number 1B\ncurrent_next_indicator 01\ncrc32 0000FEED\n"
            "program_number: 0000\nprogram_map_pid: 0010\nprogram_number: ABCD\nprogram_map_pid: 1FFF\n");
  std::ostringstream plain;
  pat.get_program_info(0).dump_state(plain);
  plain << 10;
  EXPECT_EQ(plain.str(), "program_number:    0\nprogram_map_pid:   10\na");
}

}  // namespace
}  // namespace sivane
