// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// Text in an encoding that iconv knows; U+FFFD for what it does not have. Of an unknown encoding every byte
/// above 0x7F is such a one.
std::u32string to_unicode(std::string_view text, std::string const& encoding);

/// The way back; "?" for what the encoding does not have.
std::string from_unicode(std::u32string_view text, std::string const& encoding);

}  // namespace inspect
