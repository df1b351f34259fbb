// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <exception>
#include <string>

namespace sivane {

/// The one type that the library throws: bad packets, sections, descriptors and documents all end in an
/// `error`.
///
/// The base class is not public. Catch `error` by reference; a handler for `std::exception` does not see it.
class SIVANE_API error : private std::exception {
 public:
  /// The class of a failure.
  enum errorcode_enum : int {
    item_length_error = 0,  ///< a payload is no whole number of fixed-size items; `what()` is empty
    reserved_error = 1,     ///< reported by nothing
    syntax_error = 2,       ///< header bits, or a loop that does not end where it should; `what()` is empty
    length_error = 3,       ///< a length field that does not fit what it covers; `what()` names it
    no_errorcode = -1,      ///< every other failure; `what()` is all that there is
  };

  /// With a text; `value` means nothing.
  error(errorcode_enum failure_code, char const* message);
  /// Of `no_errorcode`; `value` is 0xFFFFFFFF.
  error(char const* message);
  /// Without a text; `number` is what `value` holds.
  error(errorcode_enum failure_code, unsigned int number = 0xFFFFFFFF);
  /// Copies all members.
  error(error const&);
  /// Copies all members.
  error& operator=(error const&);
  virtual ~error();

  /// The message, or an empty string where none was given; never null.
  virtual char const* what() const noexcept;

  errorcode_enum code = no_errorcode;  ///< the class of the failure
  /// 0xFFFFFFFF where `code` is all that there is, or `text` alone; of a section's header bits the low 32
  /// bits of the address of the section's first or second byte. With `length_error` it means nothing.
  unsigned int value = 0;
  std::string text;  ///< the message
  /// Where in the section, in bytes from its table_id on; -1 where there is no section: packets, documents,
  /// and entries or descriptors built from a bare pointer.
  ///
  /// A field that leaves the section gives the byte at which it begins; an entry, record or descriptor that
  /// does not end where it should, its own first byte; a length or another value that is refused, that field.
  /// The failures of a header: byte 1 for its bits, 0 for the table id, the stored CRC for a wrong one; and
  /// for a section that is cut, the first byte that is missing.
  int offset = -1;
};

}  // namespace sivane
