// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/utf8.h>

namespace sivane::charset {

namespace {

constexpr char32_t last_of_size[] = {0, 0x7F, 0x7FF, 0xFFFF, 0x10FFFF};

/// Bytes of a character by its first; 0 where none begins with it.
std::size_t size_by(unsigned char first) {
  if (first < 0x80) return 1;
  if (first < 0xC0) return 0;
  return first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF8 ? 4 : 0;
}

}  // namespace

Utf8 first_of_utf8(std::string_view text) {
  auto const byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  Utf8 const invalid{byte(0), 1, false};
  std::size_t const size = size_by(byte(0));
  if (size == 1) return {byte(0), 1, true};
  if (size == 0 || size > text.size()) return invalid;
  char32_t character = byte(0) & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return invalid;
    character = character << 6 | (byte(i) & 0x3Fu);
  }
  bool const is_surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (is_surrogate || character <= last_of_size[size - 1] || character > last_of_size[4]) return invalid;
  return {character, size, true};
}

void append_utf8(std::string& text, char32_t character) {
  std::size_t size = 1;
  while (character > last_of_size[size]) ++size;
  if (size == 1) {
    text += static_cast<char>(character);
    return;
  }
  text += static_cast<char>(0xF00u >> size | character >> 6 * (size - 1));
  for (std::size_t i = size - 1; i-- > 0;) text += static_cast<char>(0x80 | (character >> 6 * i & 0x3F));
}

}  // namespace sivane::charset
