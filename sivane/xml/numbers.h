// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: numbers out of attribute texts as strtoll and strtod read them, in no locale: blanks and a sign
// may stand in front, whatever follows is ignored, and a text without a number is 0.
#pragma once

#include <cstdint>
#include <string_view>

namespace sivane {

/// The nearest 64-bit number where the text has a larger one.
std::int64_t read_integer(std::string_view text);

/// Decimal numbers with or without an exponent, "inf" and "nan". What no double holds is 0 or infinity.
double read_double(std::string_view text);

}  // namespace sivane
