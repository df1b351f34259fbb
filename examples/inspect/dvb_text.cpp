// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "dvb_text.h"

#include <algorithm>

#include "conversion.h"

namespace inspect {

namespace {

constexpr char32_t euro = 0x20AC;
constexpr char euro_byte = '\xA4';

/// Which encoding a field has, and how many bytes say so.
struct Selected {
  std::string encoding;
  std::size_t selector_size;
};

std::string latin(int part) { return "ISO-8859-" + std::to_string(part); }

Selected select(std::string_view field) {
  auto const first = static_cast<unsigned char>(field[0]);
  if (first >= 0x20) return {"ISO_6937", 0};
  if (first >= 0x01 && first <= 0x0B && first != 0x08) return {latin(first + 4), 1};
  switch (first) {
    case 0x10:
      return field.size() < 3 ? Selected{latin(1), field.size()}
                              : Selected{latin(static_cast<unsigned char>(field[2])), 3};
    case 0x11:  // the Basic Multilingual Plane
    case 0x14:  // its subset for traditional Chinese
      return {"UTF-16BE", 1};
    case 0x12:
      return {"EUC-KR", 1};
    case 0x13:
      return {"GB2312", 1};
    case 0x15:
      return {"UTF-8", 1};
    case 0x1F:  // the encoding of a registered party, whose number is a byte
      return {latin(1), std::min<std::size_t>(field.size(), 2)};
    default:
      return {latin(1), 1};
  }
}

bool is_diacritic(char byte) { return static_cast<unsigned char>(byte) >> 4 == 0xC; }

/// The default table is ISO/IEC 6937 but for the euro sign, which the converter does not know.
std::u32string from_default_table(std::string_view text) {
  std::u32string converted;
  while (!text.empty()) {
    std::size_t end = 0;
    while (end < text.size() && text[end] != euro_byte) end += is_diacritic(text[end]) ? 2 : 1;
    end = std::min(end, text.size());
    converted += to_unicode(text.substr(0, end), "ISO_6937");
    if (end < text.size()) converted += euro;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return converted;
}

/// Control characters stand at U+0080 in tables of bytes and at U+E080 in the wider ones.
bool is_control(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || (c >= 0xE080 && c <= 0xE09F) || c == 0x2028 || c == 0x2029 ||
         (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0xFEFF;
}

bool is_line_break(char32_t c) { return c == 0x8A || c == 0xE08A || c == '\n'; }

}  // namespace

std::u32string dvb_text(std::string_view field) {
  if (field.empty()) return {};
  Selected const selected = select(field);
  std::string_view const text = field.substr(selected.selector_size);
  std::u32string const all =
      selected.selector_size == 0 ? from_default_table(text) : to_unicode(text, selected.encoding);
  std::u32string shown;
  for (char32_t const c : all) {
    if (is_line_break(c)) shown += U' ';
    if (!is_control(c)) shown += c;
  }
  return shown;
}

}  // namespace inspect
