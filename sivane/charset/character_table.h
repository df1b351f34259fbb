// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sivane::charset {

/// What is put for the front of a text that iconv cannot convert, and how many bytes of it that covers.
struct StandIn {
  std::size_t size;
  std::u32string text;
};

/// A table of characters, and what iconv does not know of it.
struct CharacterTable {
  /// `rest` begins with what is malformed, cut off or not in the table, and is not empty.
  using FindStandIn = StandIn(std::string_view rest);

  char const* name;       ///< for iconv; "US-ASCII" and "UTF-8" are read without it
  bool has_ascii;         ///< whether the bytes of ASCII are its characters wherever a character may begin
  FindStandIn* stand_in;  ///< of what iconv refuses
  char32_t mistaken = 0;  ///< iconv gives this character
  char32_t meant = 0;     ///< for this one
};

/// What a field says of its characters (ETSI EN 300 468, A.2).
struct Selection {
  CharacterTable const* table;  ///< constant for the program's life; null: none is selected
  std::size_t size;             ///< of the selector in front, bytes: 0 to 3, at most those of the field
};
/// `field` is not empty.
Selection select(std::string_view field);

/// ISO/IEC 6937 with the euro sign.
CharacterTable const& default_table();
/// Null where Annex A has no table of this name, in capital or small letters.
CharacterTable const* find_table(std::string_view name);
/// For a table that Annex A does not have.
StandIn control_or_unknown(std::string_view rest);

}  // namespace sivane::charset
