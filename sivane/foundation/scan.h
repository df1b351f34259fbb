// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: numbers out of text, without a locale and without undefined results.
#pragma once

namespace sivane {

/// 0 to 15 for a hexadecimal digit of either case, else 16.
int digit_value(char c);

/// Reads blanks, a sign and digits from `text` on, as `sscanf` does with "%d" (base 10) or "%X" (base 16,
/// with or without "0x"). A number keeps its low 32 bits. Without a digit the answer is false and nothing
/// changes.
bool scan_number(char const*& text, unsigned int base, unsigned int& value);
bool scan_number(char const*& text, unsigned int base, int& value);

/// Numbers one after the other into members, in order; those that the text does not reach keep their values.
template <class... Numbers>
void scan_numbers(char const* text, unsigned int base, Numbers&... numbers) {
  static_cast<void>((scan_number(text, base, numbers) && ...));
}

}  // namespace sivane
