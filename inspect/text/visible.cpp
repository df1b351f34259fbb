// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/visible.h"

#include <sivane/charset/utf8.h>

namespace inspect {

namespace {

bool is_control(char32_t c) {
  bool const turns_direction =
      (c >= 0x200E && c <= 0x200F) || (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
  return (c < 0x20 && c != U'\n') || (c >= 0x7F && c <= 0x9F) || turns_direction;
}

void append_digits(std::string& shown, std::string_view bytes) {
  constexpr char digits[] = "0123456789abcdef";
  for (char const byte : bytes) {
    auto const value = static_cast<unsigned char>(byte);
    shown += {'\\', 'x', digits[value >> 4], digits[value & 0xF]};
  }
}

}  // namespace

std::string visible(std::string_view text) {
  std::string shown;
  shown.reserve(text.size());
  while (!text.empty()) {
    sivane::charset::Utf8 const next = sivane::charset::first_of_utf8(text);
    std::string_view const bytes = text.substr(0, next.size);
    if (next.is_valid && !is_control(next.character)) {
      shown += bytes;
    } else {
      append_digits(shown, bytes);
    }
    text.remove_prefix(next.size);
  }
  return shown;
}

}  // namespace inspect
