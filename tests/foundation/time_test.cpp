// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/time.h>

#include <chrono>
#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane {
namespace {

using testing::Bytes;
using testing::HeapBlock;
using testing::hex;

template <class Value>
Value from(char const* bytes) {
  return Value(HeapBlock(hex(bytes)).data());
}

template <class Value>
std::string streamed(Value const& value) {
  std::ostringstream os;
  os << value;
  return os.str();
}

TEST(DateTime, DecodesTheExampleOfTheStandard) {
  const auto date = from<DateTime>("C0 79 12 45 00");
  EXPECT_EQ(date.get_date_as_text(), "13 10 1993 12 45 0");
  EXPECT_EQ(streamed(date), "13/10-1993 12:45:0");
  EXPECT_EQ(streamed(DateTime()), "1/1-1 1:1:1");
}

TEST(DateTime, AgreesWithTheCalendarOnEveryDay) {
  using namespace std::chrono;
  constexpr sys_days epoch = year(1858) / November / 17;
  const int first = (sys_days(year(1900) / March / 1) - epoch).count();  // the formula's first day
  for (int mjd = first; mjd <= 0xFFFF; ++mjd) {
    const Bytes bytes{static_cast<unsigned char>(mjd >> 8), static_cast<unsigned char>(mjd), 0, 0, 0};
    const DateTime date(bytes.data());
    const year_month_day expected(epoch + days(mjd));
    ASSERT_EQ(year(date.year) / date.month / date.day, expected) << mjd;
  }
}

TEST(TimeValues, DigitsAboveNineCountWithTheirValue) {
  const auto date = from<DateTime>("C0 79 AB 99 FF");
  EXPECT_EQ(date.hour, 111);
  EXPECT_EQ(date.minute, 99);
  EXPECT_EQ(date.second, 165);
  EXPECT_EQ(from<Duration>("FF FF FF").get_time_as_text(), "165 165 165");
  const auto undefined = from<DateTime>("FF FF FF FF FF");
  EXPECT_EQ(undefined.get_date_as_text(), "22 4 2038 165 165 165");
}

TEST(TimeValues, StreamFormsHaveNoPaddingAndSetDecimal) {
  EXPECT_EQ(streamed(from<Duration>("01 45 30")), "1:45:30");
  EXPECT_EQ(streamed(from<TimeOffset>("01 00")), "1:0");
  for (const bool as_dump : {false, true}) {
    std::ostringstream os;
    os << std::hex << std::uppercase;
    const auto date = from<DateTime>("D0 A6 10 11 12");
    const auto duration = from<Duration>("10 11 12");
    if (as_dump) {
      date.dump_state(os);
      duration.dump_state(os);
    } else {
      os << date << '\n' << std::hex << duration << '\n' << std::hex << from<TimeOffset>("10 11") << '\n';
    }
    os << 10;
    EXPECT_EQ(os.str(), as_dump ? "D/2-7D5 A:B:C\nA:B:C\nA" : "13/2-2005 10:11:12\n10:11:12\n10:11\n10");
  }
}

TEST(TimeValues, StreamFormsIgnoreTheFill) {
  std::ostringstream os;
  os.fill('0');
  os << from<DateTime>("D0 AA 09 05 00");
  EXPECT_EQ(os.str(), "17/2-2005 9:5:0");
}

TEST(TimeValues, TextsRestoreWhatTheyReach) {
  struct Case {
    char const *text, *expected;
  };
  for (const Case c : {Case{"13 10 1993 12 45 0", "13 10 1993 12 45 0"},
                       {"", "1 2 3 4 5 6"},
                       {"7 8", "7 8 3 4 5 6"},
                       {"7 x 9", "7 2 3 4 5 6"},
                       {" \t7\n8  9 ", "7 8 9 4 5 6"},
                       {"-7 +8", "-7 8 3 4 5 6"},
                       {"x", "1 2 3 4 5 6"},
                       {"7 8 9 10 11 12 13", "7 8 9 10 11 12"},
                       {"7/8", "7 2 3 4 5 6"},
                       {"007", "7 2 3 4 5 6"}}) {
    DateTime date;
    date.set_date_from_text("1 2 3 4 5 6");
    EXPECT_TRUE(date.set_date_from_text(c.text));
    EXPECT_EQ(date.get_date_as_text(), c.expected) << c.text;
  }
  Duration duration;
  EXPECT_TRUE(duration.set_time_from_text("1 45 30"));
  EXPECT_EQ(duration.get_time_as_text(), "1 45 30");
  EXPECT_TRUE(duration.set_time_from_text("2"));
  EXPECT_EQ(duration.get_time_as_text(), "2 45 30");
}

TEST(TimeValues, HugeNumbersInTextsAreHarmless) {
  const std::string nines(1000, '9');
  DateTime date;
  EXPECT_TRUE(date.set_date_from_text((nines + " -" + nines + " 5").c_str()));
  EXPECT_EQ(date.year, 5);
  Duration duration;
  EXPECT_TRUE(duration.set_time_from_text("2147483647 -2147483648 1"));
  EXPECT_EQ(duration.get_time_as_text(), "2147483647 -2147483648 1");
  ApplicationIdentifier id;
  EXPECT_TRUE(id.set_application_identifier_from_text((nines + " 1").c_str()));
  EXPECT_EQ(id.application_id, 1);
}

TEST(ApplicationIdentifier, DecodesPrintsAndReadsBack) {
  const auto id = from<ApplicationIdentifier>("80 00 00 15 FF 01");
  EXPECT_EQ(id.organisation_id, 0x80000015u);
  EXPECT_EQ(id.application_id, 0xFF01);
  EXPECT_EQ(id.application_identifier_as_text(), "80000015 FF01");
  EXPECT_EQ(from<ApplicationIdentifier>("00 00 00 15 00 01").application_identifier_as_text(),
            "00000015 0001");
  std::ostringstream os;
  id.dump_state(os);
  id.dump_state(os << std::hex);
  EXPECT_EQ(os.str(),
            "organisation_id: 2147483669\napplication_id: 65281\n"
            "organisation_id: 80000015\napplication_id: ff01\n");
}

TEST(ApplicationIdentifier, ReadsEitherCaseAndShortNumbers) {
  struct Case {
    char const *text, *expected;
  };
  for (const Case c : {Case{"80000015 ff01", "80000015 FF01"},
                       {"aB c", "000000AB 000C"},
                       {"7", "00000007 0002"},
                       {"", "00000001 0002"},
                       {"g 5", "00000001 0002"}}) {
    ApplicationIdentifier id;
    id.set_application_identifier_from_text("1 2");
    EXPECT_TRUE(id.set_application_identifier_from_text(c.text));
    EXPECT_EQ(id.application_identifier_as_text(), c.expected) << c.text;
  }
}

TEST(TimeValues, ReadersBoundThem) {
  for (int size = 0; size <= 6; ++size) {
    const HeapBlock block(Bytes(static_cast<std::size_t>(size), 0x11));
    const auto fits = [&](auto build) {
      Reader reader = Reader::within(block.data(), size);
      return !testing::caught_error([&] { build(reader); });
    };
    EXPECT_EQ(fits([](Reader& r) { DateTime{r}; }), size >= 5);
    EXPECT_EQ(fits([](Reader& r) { Duration{r}; }), size >= 3);
    EXPECT_EQ(fits([](Reader& r) { TimeOffset{r}; }), size >= 2);
    EXPECT_EQ(fits([](Reader& r) { ApplicationIdentifier{r}; }), size >= 6);
  }
}

}  // namespace
}  // namespace sivane
