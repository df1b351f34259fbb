// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/character_table.h>
#include <sivane/charset/iconv_handle.h>

#include <optional>
#include <string>
#include <string_view>

namespace sivane::charset {

/// Reads the characters of one table.
class Decoder {
 public:
  /// A table of Annex A, which `open` opens.
  explicit Decoder(CharacterTable const& table) : table_(table) {}
  /// A table by its name, opened. Throws `std::invalid_argument` where there is none, and `std::bad_alloc`.
  static Decoder named(std::string const& name);

  CharacterTable const& table() const { return table_; }
  /// Before the first `decode`. False where iconv does not know the table; throws `std::bad_alloc`.
  bool open();
  /// All of the text; U+FFFD for what is none.
  std::u32string decode(std::string_view text);

 private:
  std::u32string by_iconv(std::string_view text);

  CharacterTable table_;
  std::optional<IconvHandle> iconv_;  // none: not needed, or not yet
};

}  // namespace sivane::charset
