// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_line.h>
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/scan.h>
#include <sivane/foundation/time.h>

#include <cstdio>
#include <ostream>

namespace sivane {

using dump::Line;

namespace {

int bcd_byte(Reader& reader) {
  int const digits = reader.u8();
  return (digits >> 4) * 10 + (digits & 0xF);
}

Line& add(Line& line, DateTime const& d) {
  line.number(d.day).text('/').number(d.month).text('-').number(d.year).text(' ');
  return line.number(d.hour).text(':').number(d.minute).text(':').number(d.second);
}

Line& add(Line& line, Duration const& d) {
  return line.number(d.hour).text(':').number(d.minute).text(':').number(d.second);
}

Line& add(Line& line, TimeOffset const& offset) {
  return line.number(offset.hour).text(':').number(offset.minute);
}

/// In the base that the stream has.
template <class Time>
std::ostream& write(std::ostream& os, Time const& time) {
  Line line(os);
  add(line, time).write();
  return os;
}

/// The date of a Modified Julian Date by the formula of Annex C; conversions to an integer cut towards zero.
void set_date(DateTime& date, int mjd) {
  constexpr double days_a_year = 365.25;
  constexpr double days_a_month = 30.6001;
  int const y = static_cast<int>((mjd - 15078.2) * 0.0027378507871321013);
  int const year_days = static_cast<int>(y * days_a_year);
  int const m = static_cast<int>((mjd - 14956.1 - year_days) * 0.03267963176590926);
  int const k = m == 14 || m == 15 ? 1 : 0;
  date.day = mjd - 14956 - year_days - static_cast<int>(m * days_a_month);
  date.month = m - 1 - 12 * k;
  date.year = y + k + 1900;
}

}  // namespace

DateTime::DateTime(unsigned char const* data) {
  Reader reader = Reader::trusting(data);
  *this = DateTime(reader);
}

DateTime::DateTime(Reader& reader) {
  set_date(*this, reader.u16());
  hour = bcd_byte(reader);
  minute = bcd_byte(reader);
  second = bcd_byte(reader);
}

void DateTime::dump_state(std::ostream& os) const {
  Line line(os);
  add(line, *this).end();
}

std::string DateTime::get_date_as_text() const {
  std::string text = std::to_string(day);
  for (int const number : {month, year, hour, minute, second}) text += ' ' + std::to_string(number);
  return text;
}

bool DateTime::set_date_from_text(char const* text) {
  scan_numbers(text, 10, day, month, year, hour, minute, second);
  return true;
}

std::ostream& operator<<(std::ostream& os, DateTime const& date) { return write(os << std::dec, date); }

Duration::Duration(unsigned char const* data) {
  Reader reader = Reader::trusting(data);
  *this = Duration(reader);
}

Duration::Duration(Reader& reader)
    : hour(bcd_byte(reader)), minute(bcd_byte(reader)), second(bcd_byte(reader)) {}

void Duration::dump_state(std::ostream& os) const {
  Line line(os);
  add(line, *this).end();
}

std::string Duration::get_time_as_text() const {
  return std::to_string(hour) + ' ' + std::to_string(minute) + ' ' + std::to_string(second);
}

bool Duration::set_time_from_text(char const* text) {
  scan_numbers(text, 10, hour, minute, second);
  return true;
}

std::ostream& operator<<(std::ostream& os, Duration const& duration) {
  return write(os << std::dec, duration);
}

TimeOffset::TimeOffset(unsigned char const* data) {
  Reader reader = Reader::trusting(data);
  *this = TimeOffset(reader);
}

TimeOffset::TimeOffset(Reader& reader) : hour(bcd_byte(reader)), minute(bcd_byte(reader)) {}

std::ostream& operator<<(std::ostream& os, TimeOffset const& offset) { return write(os << std::dec, offset); }

void dump::line(std::ostream& os, char const* label, DateTime const& value) {
  Line line(os << std::dec);
  add(line.text(label), value).end();
}

void dump::line(std::ostream& os, char const* label, Duration const& value) {
  Line line(os << std::dec);
  add(line.text(label), value).end();
}

void dump::line(std::ostream& os, char const* label, TimeOffset const& value) {
  Line line(os << std::dec);
  add(line.text(label), value).end();
}

}  // namespace sivane
