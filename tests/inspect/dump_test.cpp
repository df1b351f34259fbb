// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include <cctype>

#include "run_inspect.h"

namespace sivane::testing {

namespace {

Bytes const pat = make_pat({{0, 0x10}, {0x2A, 0x1FFE}}, {.context_id = 0x1234, .version_number = 9});

std::string const pat_dump =
    "table_id 00\n"
    "section_length 0011\n"
    "context_id 1234\n"
    "version_number 09\n"
    "section_number 00\n"
    "last_section_number 0\n"
    "current_next_indicator 01\n"
    "crc32 CC24C04C\n"
    "program_number: 0000\n"
    "program_map_pid: 0010\n"
    "program_number: 002A\n"
    "program_map_pid: 1FFE\n";

Outcome dump(std::string const& lines) { return inspect("dump --input sections @", lines); }

std::string upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

// A dump leaves its stream in another base and fill; nothing of that reaches the next section or number.
TEST(InspectDump, NumbersSectionsAndStartsEachAfresh) {
  std::string lines;
  std::string expected;
  for (int number = 1; number <= 10; ++number) {
    lines += hex_text(pat) + "\n";
    expected += "== " + std::to_string(number) + " Pat\n" + pat_dump;
  }
  Outcome const run = dump(lines);
  EXPECT_EQ(run.out, expected);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST(InspectDump, ReadsEveryWayToWriteASectionLine) {
  std::string const digits = hex_text(pat);
  std::string const lines[] = {
      digits,                // without a line end
      upper(digits) + "\n",  // upper case
      digits + "\r\n",
      "# a comment\n\n \t\r\n" + digits + "\n#" + digits + "\n",
      "Pat " + digits + "\n",
      "Pat \t" + digits + "  \r\n",
      digits + "ffff00\n",
      digits + "f\n",  // half a byte behind the end
  };
  for (std::string const& line : lines) {
    Outcome const run = dump(line);
    EXPECT_EQ(run.out, "== 1 Pat\n" + pat_dump) << line;
    EXPECT_EQ(run.err, "") << line;
    EXPECT_EQ(run.status, 0) << line;
  }
}

TEST(InspectDump, ShowsTheLibrarysFailures) {
  Bytes wrong_crc = pat;
  wrong_crc.back() ^= 1;
  Bytes const no_class = make_section({.table_id = 0xF0}, {});
  struct Case {
    std::string line;
    std::string out;
  };
  Case const cases[] = {
      {hex_text(wrong_crc), "== 1 Pat\nerror -1 crc error\n"},
      {hex_text(make_section({}, hex("00 01 e0"))), "== 1 Pat\nerror 3 Pat parse error\n"},
      {hex_text(make_pat({}, {.syntax_indicator = 0})), "== 1 Pat\nerror 2 \n"},
      {hex_text(no_class), "== 1 -\nerror -1 no class for table id\n"},
      {"Pat " + hex_text(no_class), "== 1 Pat\nerror -1 invalid table id\n"},
      {"Nothing " + hex_text(pat), "== 1 -\nerror -1 no class for table id\n"},
  };
  for (Case const& c : cases) {
    Outcome const run = dump(c.line + "\n");
    EXPECT_EQ(run.out, c.out);
    EXPECT_EQ(line_count(run.err), 1) << run.err;
    EXPECT_EQ(run.status, 1);
  }
}

TEST(InspectDump, RefusesWhatIsNotAWholeSectionBeforeItLooksForAClass) {
  std::string const digits = hex_text(pat);
  std::string const unknown = hex_text(make_section({.table_id = 0xF0}, {}));
  std::string const lines[] = {
      digits.substr(0, digits.size() - 1),  // half a byte is missing
      digits.substr(0, digits.size() - 2),
      unknown.substr(0, unknown.size() - 2),
      "00b00",
      "f",
      "Pat",
      "Nothing 00b0",
      "Pat " + digits.substr(2),
      digits + "x",  // behind the end, but no hexadecimal
      digits.substr(0, 8) + "-" + digits.substr(8),
      "Pat Pat " + digits,
      "0x" + digits,
  };
  for (std::string const& line : lines) {
    Outcome const run = dump(line + "\n");
    EXPECT_EQ(run.out, "== 1 -\nerror -1 not a whole section\n") << line;
    EXPECT_EQ(line_count(run.err), 1) << run.err;
    EXPECT_EQ(run.status, 1);
  }
}

// The failing PAT is refused after its header was read: none of that may be shown.
TEST(InspectDump, GoesOnBehindAFailure) {
  std::string const good = hex_text(pat) + "\n";
  Outcome const run =
      dump("zz\n" + good + "# 2\n" + hex_text(make_section({}, hex("00 01 e0"))) + "\n" + good);
  EXPECT_EQ(run.out, "== 1 -\nerror -1 not a whole section\n== 2 Pat\n" + pat_dump +
                         "== 3 Pat\nerror 3 Pat parse error\n== 4 Pat\n" + pat_dump);
  EXPECT_EQ(line_count(run.err), 2) << run.err;
  EXPECT_NE(run.err.find("section 3 (Pat)"), std::string::npos) << run.err;
  EXPECT_EQ(run.status, 1);
}

}  // namespace sivane::testing
