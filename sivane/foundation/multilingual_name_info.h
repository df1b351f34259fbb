// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/fields.h>
#include <sivane/foundation/reader.h>

#include <iosfwd>
#include <string>

namespace sivane {

/// A name in one language: the record of the multilingual network, bouquet and component descriptors
/// (ETSI EN 300 468, 6.2.22 to 6.2.24).
class SIVANE_API MultilingualNameInfo {
 public:
  MultilingualNameInfo() = default;
  /// `size` is the number of bytes left in the loop, `used` what the record took. Throws
  /// `error::length_error` where the head (4 bytes) or the name does not fit in `size`.
  MultilingualNameInfo(unsigned char const* data, int size, int& used);
  /// From where the reader is, and steps over it.
  explicit MultilingualNameInfo(Reader& reader);
  /// From its element of a document. Throws `error` where a part is missing.
  explicit MultilingualNameInfo(void* node);
  /// Loads it from its element. Throws `error` where an attribute or child is missing.
  void Parse(void* node);
  /// Saves it on its element, which `document` has made. False once the document refuses.
  bool SaveSection(void* document, void* element) const;
  SIVANE_FIELDS(MultilingualNameInfo)

  /// Prints its lines.
  void _dump_state(std::ostream& os) const;

  char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
  int text_len = 0;                    ///< 8 bits
  std::string name;                    ///< raw, a character table selector included
};

}  // namespace sivane
