// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/time.h>

#include <chrono>
#include <sstream>

#include "heap_block.h"

namespace sivane::testing {
namespace {

template <class Value>
Value from(char const* bytes) {
  return Value(HeapBlock(hex(bytes)).data());
}

TEST(DateTime, AgreesWithTheCalendarOnEveryDay) {
  using namespace std::chrono;
  constexpr sys_days epoch = year(1858) / November / 17;
  int const first = (sys_days(year(1900) / March / 1) - epoch).count();  // the formula's first day
  for (int mjd = first; mjd <= 0xFFFF; ++mjd) {
    Bytes const bytes{static_cast<unsigned char>(mjd >> 8), static_cast<unsigned char>(mjd), 0, 0, 0};
    DateTime const date(bytes.data());
    year_month_day const expected(epoch + days(mjd));
    ASSERT_EQ(year(date.year) / date.month / date.day, expected) << mjd;
  }
}

TEST(TimeValues, DigitsAboveNineCountWithTheirValue) {
  EXPECT_EQ(from<DateTime>("C0 79 AB 99 FF").get_date_as_text(), "13 10 1993 111 99 165");
  EXPECT_EQ(from<Duration>("FF 0A A0").get_time_as_text(), "165 10 100");
}

TEST(TimeValues, StreamFormsHaveNoPaddingAndSetDecimalWhereDumpsKeepTheBase) {
  auto const date = from<DateTime>("D0 A6 09 11 12");
  auto const duration = from<Duration>("09 11 12");
  std::ostringstream os;
  os.fill('0');
  os << DateTime() << std::hex << ' ' << date << '\n'
     << std::hex << duration << '\n'
     << std::hex << from<TimeOffset>("09 11") << 10;
  date.dump_state(os << std::hex << std::uppercase);
  duration.dump_state(os);
  EXPECT_EQ(os.str(), "1/1-1 1:1:1 13/2-2005 9:11:12\n9:11:12\n9:1110D/2-7D5 9:B:C\n9:B:C\n");
}

TEST(TimeValues, TextsRestoreWhatTheyReach) {
  std::string const nines(1000, '9');
  for (auto const& [text, expected] : std::vector<std::pair<std::string, char const*>>{
           {"", "1 2 3 4 5 6"},
           {"7 x 9", "7 2 3 4 5 6"},
           {"7a 9", "7 2 3 4 5 6"},
           {" \t007\n8\r9 ", "7 8 9 4 5 6"},
           {"-7 +8", "-7 8 3 4 5 6"},
           {"2147483647 -2147483648", "2147483647 -2147483648 3 4 5 6"},
           {"7 8 9 10 11 12 13", "7 8 9 10 11 12"},
           {"7/8", "7 2 3 4 5 6"}}) {
    DateTime date;
    date.set_date_from_text("1 2 3 4 5 6");
    EXPECT_TRUE(date.set_date_from_text(text.c_str()));
    EXPECT_EQ(date.get_date_as_text(), expected) << text;
  }
  DateTime date;
  EXPECT_TRUE(date.set_date_from_text((nines + " -" + nines + " 5").c_str()));
  EXPECT_EQ(date.year, 5);
  Duration duration;
  EXPECT_TRUE(duration.set_time_from_text("1 45 30") && duration.set_time_from_text("2"));
  EXPECT_EQ(duration.get_time_as_text(), "2 45 30");
}

TEST(ApplicationIdentifier, TextsAreHexadecimalOfEitherCase) {
  for (auto const& [text, expected] :
       std::vector<std::pair<char const*, char const*>>{{"80000015 -1", "80000015 FFFFFFFF"},
                                                        {"aB 0Xc", "000000AB 000C"},
                                                        {"7", "00000007 0002"},
                                                        {"g 5", "00000001 0002"}}) {
    ApplicationIdentifier id;
    id.set_application_identifier_from_text("1 2");
    EXPECT_TRUE(id.set_application_identifier_from_text(text));
    EXPECT_EQ(id.application_identifier_as_text(), expected) << text;
  }
}

}  // namespace
}  // namespace sivane::testing
