// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>

#include <string>

namespace sivane {

/// A DVB text field (ETSI EN 300 468, Annex A): the bytes as they came, without a character table selector in
/// front. No character set conversion takes place. One selector byte is dropped; bytes that belong to a
/// longer selector stay in the text.
class SIVANE_API Text : public std::string {
 public:
  Text() = default;
  /// A length byte and that many bytes at `field`; `used` is the length plus 1.
  Text(unsigned char const* field, int& used);

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
};

}  // namespace sivane
