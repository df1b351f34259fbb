// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string_view>

#include "section_builder.h"

namespace sivane::testing {

/// Bytes from a notation that leaves lengths and checksums to be computed:
///
///     02 B( 0001 C1 00 00 E100 F( 09[ 0500 E1F5 "key" ] ) 1B E101 F() crc )  # to the end of the line
///
/// Hexadecimal digits and quoted characters stand for themselves, blanks for nothing. `[ ]` begins with a
/// byte that counts what is within, `x( )` with the digit x and twelve bits that count it; a signed number
/// right behind the bracket is added to the count. `crc` is the CRC_32 of all that stands before it. `^` is
/// no byte: how many stand before it goes into `mark`, if there is one. Throws on anything else.
Bytes assemble(std::string_view text, int* mark = nullptr);

}  // namespace sivane::testing
