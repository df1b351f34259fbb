// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: between the byte strings of the library and the wide strings of a DOM.
#pragma once

#include <string>
#include <string_view>

namespace sivane {

/// Byte b becomes U+00bb.
std::u16string widen(std::string_view bytes);

/// The way back. Code points that windows-1252 gives to the bytes 0x80 to 0x9F become these bytes, since
/// documents hold them where another program wrote them; whatever else is no byte becomes '?'.
std::string narrow(std::u16string_view text);

}  // namespace sivane
