// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Members as text: numbers in hexadecimal, doubles with all their digits, strings in quotes, bytes in angle
// brackets, lists in square ones.
#pragma once

#include <charconv>
#include <concepts>
#include <string>
#include <vector>

namespace sivane::testing {

inline std::string two_digits(unsigned char byte) {
  constexpr char digits[] = "0123456789abcdef";
  return {digits[byte / 16], digits[byte % 16]};
}

/// Text with control and high bytes as a backslash and two digits.
inline std::string printable(std::string const& raw) {
  std::string text;
  for (char const c : raw) {
    text += c >= ' ' && c <= '~' && c != '\\' ? std::string(1, c)
                                              : '\\' + two_digits(static_cast<unsigned char>(c));
  }
  return text;
}

template <std::integral Number>
std::string spelled(Number value) {
  char digits[20];
  auto const bits =
      static_cast<std::make_unsigned_t<std::conditional_t<sizeof(Number) == 1, int, Number>>>(value);
  return {digits, std::to_chars(std::begin(digits), std::end(digits), bits, 16).ptr};
}

inline std::string spelled(double value) {
  char digits[40];
  return {digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr};
}

inline std::string spelled(std::string const& value) {
  return std::string("'").append(printable(value)) + '\'';
}

inline std::string spelled(std::vector<unsigned char> const& bytes) {
  std::string text = "<";
  for (unsigned char const byte : bytes) text += two_digits(byte);
  return text + ">";
}

template <class Value>
std::string spelled(std::vector<Value> const& values) {
  std::string text = "[";
  for (Value const& value : values) text += (text.size() > 1 ? " " : "") + spelled(value);
  return text + "]";
}

/// The values with a blank between.
template <class... Values>
std::string members(Values const&... values) {
  std::string text;
  ((text += (text.empty() ? "" : " ") + spelled(values)), ...);
  return text;
}

}  // namespace sivane::testing
