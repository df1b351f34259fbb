// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the texts of coded values.
#pragma once

#include <cstddef>

namespace sivane {

/// The text at `value`, counted from `first`; `other` outside the table and where it holds no text.
template <std::size_t count>
char const* value_text(char const* const (&texts)[count], int value, char const* other, int first = 0) {
  if (value < first || static_cast<std::size_t>(value - first) >= count) return other;
  char const* const text = texts[value - first];
  return text != nullptr ? text : other;
}

}  // namespace sivane
