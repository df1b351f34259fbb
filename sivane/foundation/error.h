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

  error(errorcode_enum failure_code, char const* message);
  error(char const* message);
  error(errorcode_enum failure_code, unsigned int number = 0xFFFFFFFF);
  error(error const&);
  error& operator=(error const&);
  virtual ~error();

  /// The message, or an empty string where none was given; never null.
  virtual char const* what() const noexcept;

  errorcode_enum code = no_errorcode;
  unsigned int value = 0;  ///< of a section's `syntax_error`: the low 32 bits of the byte's address
  std::string text;        ///< the message
};

}  // namespace sivane
