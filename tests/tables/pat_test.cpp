// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/pat.h>

#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {
namespace {

Pat parsed(Bytes const& section) {
  Pat pat;
  pat.Parse(HeapBlock(section).data());
  return pat;
}

TEST(Pat, ReadsItsProgramsInOrderAndDumpsThemLineForLine) {
  Bytes const section = make_pat({{0, 0x10}, {0xABCD, 0x1FFF}, {1, 0}},
                                 {.context_id = 0x1234, .version_number = 3, .last_section_number = 0x1B});
  EXPECT_EQ(Bytes(section.begin(), section.begin() + 3), hex("00 B0 15"));
  Pat pat = parsed(section);
  EXPECT_EQ(pat.get_program_info_size(), 3u);
  EXPECT_EQ(pat.get_program_info(1).program_map_pid, 0x1FFF);
  pat.crc32 = 0xFEED;
  std::ostringstream os, plain;
  pat.dump_state(os);
  EXPECT_EQ(os.str(),
            "table_id 00\nsection_length 0015\ncontext_id 1234\nversion_number 03\nsection_number 00\n"
            "last_section_number 1B\ncurrent_next_indicator 01\ncrc32 0000FEED\n"
            "program_number: 0000\nprogram_map_pid: 0010\nprogram_number: ABCD\nprogram_map_pid: 1FFF\n"
            "program_number: 0001\nprogram_map_pid: 0000\n");
  pat.get_program_info(0).dump_state(plain);
  EXPECT_EQ(plain.str(), "program_number:    0\nprogram_map_pid:   10\n");
}

TEST(Pat, EverySectionLength) {
  for (int length = 0; length <= 30; ++length) {
    Bytes section(static_cast<std::size_t>(length) + 3, 0xE1);
    section[0] = 0;
    section[1] = 0xB0;
    section[2] = static_cast<unsigned char>(length);
    if (length >= 4) repair_crc(section);
    HeapBlock const block(section);
    Pat pat;
    auto const parse = [&] { pat.Parse(block.data()); };
    if (length < 4) {  // no section so short has a right CRC
      EXPECT_TRUE(throws(parse, "crc error")) << length;
    } else if (length == 4) {  // byte 7 of the header is missing
      EXPECT_TRUE(throws(parse, "too little data"));
      EXPECT_EQ(pat.context_id, 0);
    } else if (length % 4 != 1) {
      EXPECT_TRUE(throws(parse, error::length_error, "Pat parse error")) << length;
    } else {
      parse();
      EXPECT_EQ(static_cast<int>(pat.get_program_info_size()), std::max(0, (length - 9) / 4)) << length;
    }
  }
  EXPECT_EQ(parsed(make_pat(std::vector<Program>(1021, {7, 0x20}))).get_program_info_size(), 1021u);
}

TEST(Pat, RefusesOtherTables) {
  EXPECT_TRUE(throws([] { parsed(make_pat({}, {.table_id = 1})); }, "invalid table id"));
}

TEST(Pat, ParseAddsUntilReset) {
  Pat pat = parsed(make_pat({{1, 0x100}}));
  HeapBlock const more(make_pat({{2, 0x200}, {3, 0x300}}, {.version_number = 4}));
  auto const size = static_cast<std::size_t>(more.size());
  pat.Parse(more.data(), size);
  EXPECT_TRUE(throws([&] { pat.Parse(more.data(), size - 1); }, "too little data"));
  EXPECT_EQ(pat.get_program_info_size(), 3u);
  EXPECT_TRUE(pat.valid);
  Pat const copy = pat;
  pat.reset();
  EXPECT_EQ(pat.get_program_info_size(), 0u);
  EXPECT_EQ(copy.get_program_info_size(), 3u);
  pat.Parse(more.data());
  EXPECT_EQ(pat.get_program_info_size(), 2u);
}

}  // namespace
}  // namespace sivane::testing
