// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: between the UTF-16 of the interfaces and the UTF-8 of the tree, which holds nothing that XML 1.0
// forbids (5th edition, 2.2).
#pragma once

#include <string>
#include <string_view>

namespace sivane::dom {

/// Control characters 0x01 to 0x1F but tab, line feed and carriage return become the control pictures U+2401
/// to U+241F; whatever else XML forbids becomes U+FFFD.
std::string to_utf8(std::u16string_view text);

/// The same for ASCII without controls, which both spell alike, into room for as many characters. False where
/// there is anything else; nothing is to be read there then.
bool copy_plain(std::u16string_view text, char* converted);

/// The way back for valid UTF-8: control pictures become the characters that they show.
std::u16string from_utf8(std::string_view text);

/// Whether `to_utf8` of `wide`, which ends at a zero, is `name`.
bool is_same(std::string_view name, char16_t const* wide);

/// Whether elements and attributes may be given this name: ASCII letters, digits and "_:-." after a letter,
/// '_' or ':'. (Readers do not agree about other characters.)
bool is_name(std::string_view text);

}  // namespace sivane::dom
