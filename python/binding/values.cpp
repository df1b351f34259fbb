// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "values.h"

// Before all else that may include it.
#include <datetime.h>
#include <sivane/charset/utf8.h>

#include <cstdio>

namespace sivane::python {

namespace py = pybind11;

namespace {

bool is_within(int value, int first, int last) { return first <= value && value <= last; }

bool is_defined(DateTime const& date) {
  return is_within(date.month, 1, 12) && is_within(date.day, 1, 31) && is_within(date.hour, 0, 23) &&
         is_within(date.minute, 0, 59) && is_within(date.second, 0, 59);
}

bool is_defined(Duration const& duration) {
  return is_within(duration.hour, 0, 99) && is_within(duration.minute, 0, 59) &&
         is_within(duration.second, 0, 59);
}

py::object owned(PyObject* object) {
  if (object == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(object);
}

py::object utc(int year, int month, int day, int hour, int minute, int second) {
  return owned(PyDateTimeAPI->DateTime_FromDateAndTime(year, month, day, hour, minute, second, 0,
                                                       PyDateTime_TimeZone_UTC, PyDateTimeAPI->DateTimeType));
}

std::string with_replacements(std::string_view text) {
  std::string valid;
  while (!text.empty()) {
    charset::Utf8 const first = charset::first_of_utf8(text);
    charset::append_utf8(valid, first.is_valid ? first.character : U'\uFFFD');
    text.remove_prefix(first.size);
  }
  return valid;
}

}  // namespace

py::object date(DateTime const& date) {
  // A document may tell of the 31st of February, or of the year 0.
  std::chrono::year_month_day const day{std::chrono::year(date.year),
                                        std::chrono::month(static_cast<unsigned int>(date.month)),
                                        std::chrono::day(static_cast<unsigned int>(date.day))};
  if (!is_defined(date) || !day.ok() || !is_within(date.year, 1, 9999)) return py::none();
  return utc(date.year, date.month, date.day, date.hour, date.minute, date.second);
}

py::object duration(Duration const& duration) {
  if (!is_defined(duration)) return py::none();
  return python::duration(std::chrono::hours(duration.hour) + std::chrono::minutes(duration.minute) +
                          std::chrono::seconds(duration.second));
}

py::object date(std::chrono::sys_seconds time) {
  auto const midnight = std::chrono::floor<std::chrono::days>(time);
  std::chrono::year_month_day const day(midnight);
  std::chrono::hh_mm_ss const clock(time - midnight);
  return utc(static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned int>(day.month())),
             static_cast<int>(static_cast<unsigned int>(day.day())), static_cast<int>(clock.hours().count()),
             static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
}

py::object duration(std::chrono::seconds span) {
  constexpr std::chrono::seconds day = std::chrono::days(1);
  return owned(PyDateTimeAPI->Delta_FromDelta(
      static_cast<int>(span / day), static_cast<int>((span % day).count()), 0, 1, PyDateTimeAPI->DeltaType));
}

py::str utf8(std::string_view text) {
  PyObject* string = PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), nullptr);
  if (string == nullptr && PyErr_ExceptionMatches(PyExc_UnicodeDecodeError) != 0) {
    PyErr_Clear();
    std::string const valid = with_replacements(text);
    string = PyUnicode_DecodeUTF8(valid.data(), static_cast<Py_ssize_t>(valid.size()), nullptr);
  }
  return py::str(owned(string));
}

py::bytes bytes(unsigned char const* data, std::size_t size) {
  return py::reinterpret_steal<py::bytes>(
      owned(PyBytes_FromStringAndSize(reinterpret_cast<char const*>(data), static_cast<Py_ssize_t>(size)))
          .release());
}

std::string date_text(DateTime const& date) {
  if (!is_defined(date)) return {};
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", date.year, date.month, date.day,
                date.hour, date.minute, date.second);
  return text;
}

std::string duration_text(Duration const& duration) {
  if (!is_defined(duration)) return {};
  char text[40];
  std::snprintf(text, sizeof text, "PT%dH%dM%dS", duration.hour, duration.minute, duration.second);
  return text;
}

void prepare_values() {
  PyDateTime_IMPORT;
  if (PyDateTimeAPI == nullptr) throw py::error_already_set();
}

}  // namespace sivane::python
