// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/text.h>

namespace sivane {

Text::Text(unsigned char const* field, int& used) { parse(field, used); }

void Text::parse(unsigned char const* field, int& used) {
  parse(field[0], field + 1);
  used = field[0] + 1;
}

void Text::parse(int length, unsigned char const* data) {
  if (length <= 0) return;
  char const* const text = reinterpret_cast<char const*>(data);
  int const dropped = is_char_table(text[0]) ? 1 : 0;
  if (empty()) selector_ = dropped != 0 ? data[0] : -1;
  append(text + dropped, static_cast<std::size_t>(length - dropped));
}

bool Text::is_char_table(char c) {
  auto const byte = static_cast<unsigned char>(c);
  return byte <= 0x06 || (byte >= 0x0F && byte <= 0x12) || byte == 0x1F;
}

}  // namespace sivane
