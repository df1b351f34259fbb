// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/xml/strings.h>

#include <algorithm>
#include <iterator>

namespace sivane {

namespace {

// windows-1252 from 0x80 on; 0 where it has none.
constexpr char16_t windows_1252[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,       // 0x88
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,  // 0x98
};

char byte_of(char16_t c) {
  if (c <= 0xFF) return static_cast<char>(c);
  auto const* const found = std::find(std::begin(windows_1252), std::end(windows_1252), c);
  if (found == std::end(windows_1252)) return '?';
  return static_cast<char>(0x80 + (found - std::begin(windows_1252)));
}

bool is_high_surrogate(char16_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool is_low_surrogate(char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

std::u16string widen(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size());
  for (char const c : bytes) text += static_cast<char16_t>(static_cast<unsigned char>(c));
  return text;
}

std::string narrow(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    bytes += byte_of(text[i]);
    if (i + 1 < text.size() && is_high_surrogate(text[i]) && is_low_surrogate(text[i + 1])) ++i;
  }
  return bytes;
}

}  // namespace sivane
