// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/fields.h>
#include <sivane/foundation/reader.h>

#include <iosfwd>
#include <string>

namespace sivane {

/// A length byte and a string that is taken as it comes, a character table selector included.
class SIVANE_API LengthPrefixedString {
 public:
  LengthPrefixedString() = default;
  /// `used` is the length plus 1. `size` is not looked at.
  LengthPrefixedString(unsigned char const* data, int size, int& used);
  /// From where the reader is, and steps over it.
  explicit LengthPrefixedString(Reader& reader);

  /// Two lines, `label` with "_length: " and `label` with ": ".
  void dump_state(char const* label, std::ostream& os) const;
  /// Loads it from its element. Throws `error` where an attribute or child is missing.
  void Parse(void* node);
  /// Saves it on its element, which `document` has made. False once the document refuses.
  bool SaveSection(void* document, void* element) const;
  SIVANE_FIELDS(LengthPrefixedString)

  int length = 0;     ///< 8 bits
  std::string value;  ///< as many characters as the length says
};

}  // namespace sivane
