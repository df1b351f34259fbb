// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace inspect {

/// A character at the front of a text in UTF-8, or one byte that begins none.
struct Utf8 {
  char32_t character;
  std::size_t size;  ///< bytes: 1 to 4; 1 where it is not valid
  bool is_valid;
};

/// `text` is not empty. Overlong forms, surrogates and what lies above U+10FFFF are not valid.
Utf8 first_of_utf8(std::string_view text);

void append_utf8(std::string& text, char32_t character);

}  // namespace inspect
