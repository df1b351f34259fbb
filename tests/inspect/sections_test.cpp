// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <packet_writer.h>

#include "run_inspect.h"

namespace sivane::testing {

TEST(InspectSections, ListsSectionsOfATextWithoutParsingThem) {
  Bytes wrong_crc = make_pat({{1, 0x100}});
  wrong_crc.back() ^= 1;
  Bytes const unknown = make_section({.table_id = 0xF0}, hex("ab cd"));
  Outcome const run = inspect("sections --input sections @",
                              hex_text(wrong_crc) + "0123\nNothing " + hex_text(unknown) + "\nF00000\n");
  EXPECT_EQ(run.out, "- 0x00 " + hex_text(wrong_crc) + "\n- 0xf0 " + hex_text(unknown) + "\n- 0xf0 f00000\n");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST(InspectSections, ReportsABrokenLineAndPrintsNothingForIt) {
  Outcome const run = inspect("sections --input sections @", "00b0\n70000100\n");
  EXPECT_EQ(run.out, "- 0x70 70000100\n");
  EXPECT_NE(run.err.find("not a whole section"), std::string::npos) << run.err;
  EXPECT_EQ(line_count(run.err), 1) << run.err;
  EXPECT_EQ(run.status, 1);
}

TEST(InspectSections, ListsHandledTablesOfAStreamInTheOrderOfDelivery) {
  Bytes const pat = make_pat({{1, 0x100}});
  Bytes const eit = make_section({.table_id = 0x4E}, Bytes(600, 0x5A));
  Bytes const time = make_short_section(0x70, hex("eeb9181200"));
  PacketWriter writer;
  writer.section(0x12, eit);
  writer.section(0x1FFE, time);
  writer.section(0, pat);
  std::string const pat_line = "0x0000 0x00 " + hex_text(pat) + "\n";
  std::string const eit_line = "0x0012 0x4e " + hex_text(eit) + "\n";
  std::string const time_line = "0x1ffe 0x70 " + hex_text(time) + "\n";
  struct Case {
    char const* options;
    std::string out;
  };
  Case const cases[] = {
      {"", eit_line + pat_line},
      {"--handle 0x12:0x4E", eit_line},  // and not the usual ones
      {"--handle 022:78 --handle 8190:0x70 --handle 0:0 -H 0:0", eit_line + time_line + pat_line},
      {"--handle 0x12:0x4F", ""},
  };
  for (Case const& c : cases) {
    Outcome const run = inspect("sections " + std::string(c.options) + " @", writer.stream());
    EXPECT_EQ(run.out, c.out) << c.options;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
  }
}

}  // namespace sivane::testing
