// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// What is put for the front of a text that iconv cannot convert, and how many bytes of it that covers.
struct StandIn {
  std::size_t size;
  std::u32string text;
};
/// Finds it; `rest` begins with what is malformed, cut off or not in the encoding, and is not empty.
using FindStandIn = StandIn (*)(std::string_view rest);

/// U+FFFD for a byte.
StandIn unknown_byte(std::string_view rest);

/// Text in an encoding that iconv knows.
std::u32string to_unicode(std::string_view text, std::string const& encoding,
                          FindStandIn stand_in = unknown_byte);

/// The way back; "?" for what the encoding does not have.
std::string from_unicode(std::u32string_view text, std::string const& encoding);

}  // namespace inspect
