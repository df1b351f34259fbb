// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace sivane::charset {

/// A character at the front of a text in UTF-8, or one byte that begins none.
struct Utf8 {
  char32_t character;  ///< the byte where it is not valid
  std::size_t size;    ///< bytes: 1 to 4; 1 where it is not valid
  bool is_valid;       ///< whether it is a character
};

/// `text` is not empty. Overlong forms, surrogates and what lies above U+10FFFF are not valid (RFC 3629).
SIVANE_API Utf8 first_of_utf8(std::string_view text);

/// Appends a character, U+0000 to U+10FFFF.
SIVANE_API void append_utf8(std::string& text, char32_t character);

}  // namespace sivane::charset
