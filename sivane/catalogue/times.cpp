// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/times.h>

namespace sivane::catalogue {

namespace {

/// The formula that makes day, month and year of a Modified Julian Date, solved for it. January and February
/// are months 14 and 15 of the year before, so that `back` is 1.
int solved(DateTime const& date, int back) {
  int const year = date.year - 1900 - back;
  int const month = date.month + 1 + 12 * back;
  return date.day + 14956 + static_cast<int>(year * 365.25) + static_cast<int>(month * 30.6001);
}

bool is_of(int mjd, DateTime const& date) {
  auto const byte = [](int value) { return static_cast<unsigned char>(value); };
  unsigned char const bytes[5] = {byte(mjd >> 8), byte(mjd), 0, 0, 0};
  DateTime const made(bytes);
  return made.day == date.day && made.month == date.month && made.year == date.year;
}

/// What the date was read from. Before 1900 the formula has a first and second month of its own.
int modified_julian_date(DateTime const& date) {
  int const mjd = solved(date, date.month == 1 || date.month == 2 ? 1 : 0);
  return is_of(mjd, date) ? mjd : solved(date, 0);
}

/// Documents may hold any numbers. Those of a section are within these, dates before 1900 with odd ones.
bool is_date(DateTime const& date) {
  auto const is_small = [](int number) { return number > -1000 && number < 1000; };
  return is_small(date.day) && is_small(date.month) && is_small(date.year - 1900);
}

bool is_clock(int hour, int minute, int second, int last_hour) {
  bool const is_positive = hour >= 0 && minute >= 0 && second >= 0;
  return is_positive && hour <= last_hour && minute <= 59 && second <= 59;
}

std::chrono::seconds since_midnight(int hour, int minute, int second) {
  return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
}

}  // namespace

std::optional<Time> time_of(DateTime const& date) {
  constexpr int days_before_1970 = 40587, era = 65536, high_bit = 0x8000, hours_a_day = 24;
  if (!is_date(date) || !is_clock(date.hour, date.minute, date.second, hours_a_day - 1)) return std::nullopt;
  int const mjd = modified_julian_date(date);
  int const day = (mjd < high_bit ? mjd + era : mjd) - days_before_1970;
  return Time(std::chrono::hours(hours_a_day) * day + since_midnight(date.hour, date.minute, date.second));
}

std::optional<std::chrono::seconds> duration_of(Duration const& duration) {
  constexpr int last_hour = 99;
  if (!is_clock(duration.hour, duration.minute, duration.second, last_hour)) return std::nullopt;
  return since_midnight(duration.hour, duration.minute, duration.second);
}

}  // namespace sivane::catalogue
