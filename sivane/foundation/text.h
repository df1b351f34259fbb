// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>

#include <string>

namespace sivane {

/// A DVB text field (ETSI EN 300 468, Annex A): the bytes as they came, without a character table selector in
/// front. No character set conversion takes place. One selector byte is dropped; bytes that belong to a
/// longer selector stay in the text. Texts are equal where their bytes are, whatever was dropped.
class SIVANE_API Text : public std::string {
 public:
  Text() = default;
  /// A length byte and that many bytes at `field`; `used` is the length plus 1.
  Text(unsigned char const* field, int& used);

  /// The selector byte that was dropped, 0 to 255 (ETSI EN 300 468, A.2), by which `sivane::charset` knows
  /// the characters; -1 where none was. Where fields were appended it is that of the first byte's field. A
  /// text that was loaded from a document has none.
  int selector() const { return selector_; }

  /// Appends the field to what the text holds.
  void parse(unsigned char const* field, int& used);
  /// Appends `length` bytes, but for a character table selector in front of them.
  void parse(int length, unsigned char const* data);
  /// Appends the length-prefixed field that stands next.
  void parse(Reader& reader) { parse(reader, reader.u8()); }
  /// Appends the next `length` bytes.
  void parse(Reader& reader, int length) { parse(length, reader.raw(length)); }

 private:
  static bool is_char_table(char c);

  int selector_ = -1;
};

}  // namespace sivane
