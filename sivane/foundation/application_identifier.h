// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/fields.h>
#include <sivane/foundation/reader.h>

#include <iosfwd>
#include <string>

namespace sivane {

/// An MHP application: 32 bits of organisation and 16 of application (ETSI TS 101 812, 10.5).
class SIVANE_API ApplicationIdentifier {
 public:
  ApplicationIdentifier() = default;
  /// From 6 bytes.
  explicit ApplicationIdentifier(unsigned char const* data);
  /// From where the reader is, and steps over it.
  explicit ApplicationIdentifier(Reader& reader);

  /// Prints its lines.
  void dump_state(std::ostream& os) const;
  /// As an element of a document, each member an attribute.
  void Parse(void* node);
  /// Saves it on its element, which `document` has made. False once the document refuses.
  bool SaveSection(void* document, void* element) const;
  SIVANE_FIELDS(ApplicationIdentifier)
  /// Eight and four upper-case hexadecimal digits with a blank between.
  std::string application_identifier_as_text() const;
  /// Reads two hexadecimal numbers of either case. Members that the text does not reach stay. Always true.
  bool set_application_identifier_from_text(char const* text);

  unsigned int organisation_id = 0;  ///< 32 bits
  int application_id = 0;            ///< 16 bits
};

}  // namespace sivane
