// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/characters.h>

#include <algorithm>
#include <type_traits>

namespace sivane::dom {

namespace {

constexpr char32_t control_pictures = 0x2400;
constexpr char32_t replacement = 0xFFFD;

bool is_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }
bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

char32_t as_xml(char32_t c) {
  if (c == '\t' || c == '\n' || c == '\r') return c;
  if (c == 0 || is_surrogate(c) || c == 0xFFFE || c == 0xFFFF) return replacement;
  return c < 0x20 ? control_pictures + c : c;
}

char32_t from_xml(char32_t c) {
  return c > control_pictures && c < control_pictures + 0x20 ? c - control_pictures : c;
}

/// The code point at `at`, and steps over it; half a pair stands for itself.
char32_t next_code_point(std::u16string_view text, std::size_t& at) {
  char32_t const first = text[at++];
  if (!is_high_surrogate(first) || at == text.size() || !is_low_surrogate(text[at])) return first;
  return 0x10000 + ((first - 0xD800) << 10) + (text[at++] - 0xDC00U);
}

/// The same for UTF-8.
char32_t next_code_point(std::string_view text, std::size_t& at) {
  auto const first = static_cast<unsigned char>(text[at++]);
  int const more = first < 0xC0 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
  char32_t c = more == 0 ? first : first & (0x3FU >> more);
  for (int i = 0; i < more && at < text.size(); ++i)
    c = c << 6 | (static_cast<unsigned char>(text[at++]) & 0x3FU);
  return c;
}

void append_utf8(std::string& text, char32_t c) {
  int const more = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  constexpr char32_t first_byte[] = {0, 0xC0, 0xE0, 0xF0};
  text += static_cast<char>(first_byte[more] | c >> (6 * more));
  for (int i = more - 1; i >= 0; --i) text += static_cast<char>(0x80U | (c >> (6 * i) & 0x3FU));
}

void append_utf16(std::u16string& text, char32_t c) {
  if (c < 0x10000) {
    text += static_cast<char16_t>(c);
  } else {
    text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
  }
}

/// Copies into other units; false unless all of it is ASCII without controls, which both sides spell alike.
/// Without an early end, so that it is done for many characters at a time.
template <class From, class To>
bool copy_into(From const& text, To* converted) {
  bool is_odd = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto const unit = static_cast<std::conditional_t<sizeof(text[0]) == 1, unsigned char, char16_t>>(text[i]);
    converted[i] = static_cast<To>(unit);
    is_odd |= unit < 0x20 || unit > 0x7E;
  }
  return !is_odd;
}

bool starts_name(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':'; }

bool continues_name(char c) { return starts_name(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; }

}  // namespace

bool copy_plain(std::u16string_view text, char* converted) { return copy_into(text, converted); }

std::string to_utf8(std::u16string_view text) {
  std::string converted;
  converted.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) append_utf8(converted, as_xml(next_code_point(text, at)));
  return converted;
}

std::u16string from_utf8(std::string_view text) {
  std::u16string converted(text.size(), u'\0');
  if (copy_into(text, converted.data())) return converted;
  converted.clear();
  converted.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) append_utf16(converted, from_xml(next_code_point(text, at)));
  return converted;
}

/// Names are mostly ASCII: only others are turned into the same form first.
bool is_same(std::string_view name, char16_t const* wide) {
  char16_t const* at = wide;
  for (char const c : name) {
    if (static_cast<unsigned char>(c) > 0x7E) return to_utf8(wide) == name;
    if (static_cast<char16_t>(c) != *at++) return false;
  }
  return *at == 0;
}

bool is_name(std::string_view text) {
  return !text.empty() && starts_name(text.front()) && std::all_of(text.begin(), text.end(), continues_name);
}

}  // namespace sivane::dom
