// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/xml/numbers.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <new>
#include <string>
#include <system_error>
#include <version>

#ifndef __cpp_lib_to_chars
#include <clocale>
#include <cstdlib>
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif
#endif

namespace sivane {

namespace {

/// The text from where std::from_chars reads it: behind blanks and a plus sign.
std::string_view without_lead(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  return text;
}

/// Reads `text` into `value`, which stays if there is no number; false if `Number` cannot hold it. `text`
/// becomes the number alone.
template <class Number>
bool holds(std::string_view& text, Number& value) {
  text = without_lead(text);
  char const* const end = text.data() + text.size();
  auto const result = std::from_chars(text.data(), end, value);
  text.remove_suffix(static_cast<std::size_t>(end - result.ptr));
  return result.ec != std::errc::result_out_of_range;
}

}  // namespace

std::int64_t read_integer(std::string_view text) {
  using Limits = std::numeric_limits<std::int64_t>;
  std::int64_t value = 0;
  if (holds(text, value)) return value;
  return text.starts_with('-') ? Limits::min() : Limits::max();
}

#ifdef __cpp_lib_to_chars

namespace {

/// Whether a number that no double holds is too large, rather than too small: by the power of ten of its
/// first digit that counts.
bool is_too_large(std::string_view number) {
  std::size_t const end = std::min(number.find_first_of("eE"), number.size());
  std::string_view const digits = number.substr(0, end);
  auto const point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
  auto const first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
  return end < number.size() ? read_integer(number.substr(end + 1)) > first - point : point > first;
}

}  // namespace

double read_double(std::string_view text) {
  double value = 0;
  if (holds(text, value)) return value;
  double const nearest = is_too_large(text) ? std::numeric_limits<double>::infinity() : 0;
  return std::copysign(nearest, text.starts_with('-') ? -1.0 : 1.0);
}

#else  // such as libc++, which reads no doubles before version 20

double read_double(std::string_view text) {
  static locale_t const classic = newlocale(LC_ALL_MASK, "C", nullptr);
  if (classic == nullptr) throw std::bad_alloc();
  text = without_lead(text);
  std::size_t const sign = text.starts_with('-') ? 1 : 0;
  if (text.find_first_of("0123456789.iInN", sign) != sign) return 0;
  std::string const number(text.substr(0, text.find_first_of("xX")));  // no hexadecimal digits
  return strtod_l(number.c_str(), nullptr, classic);
}

#endif

}  // namespace sivane
