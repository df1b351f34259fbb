// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/text.h>

#include <memory>
#include <string>
#include <string_view>

namespace sivane::charset {

/// How a `Converter` reads and what it writes. Tables are named as iconv knows them: "ISO-8859-1", "UTF-8".
struct Options {
  /// The table of texts that select none; empty: ISO/IEC 6937 with the euro sign (ETSI EN 300 468, A.2).
  /// Some broadcasts mean another one, Latin-1 above all.
  std::string default_table = {};
  /// The table of all texts, whatever they select, for broadcasts that select a wrong one; empty: none.
  std::string overrule = {};
  std::string line_break = "\n";  ///< in UTF-8: what stands for 0x8A, and for LF where a broadcast has that
  std::string emphasis_on = {};   ///< the same for 0x86
  std::string emphasis_off = {};  ///< the same for 0x87
};

/// Turns texts of broadcasts into UTF-8 (ETSI EN 300 468, Annex A).
///
/// What comes out is always valid UTF-8 that XML 1.0 can hold. U+FFFD stands for what is malformed, cut off,
/// not in its table, or not of ASCII in a table that is reserved or a broadcaster's own (selector 0x1F). A
/// tab becomes a blank; all other control characters are left out, and so are those that embed or override
/// the direction of writing, so that a broadcast cannot steer a terminal.
///
/// A converter of iconv is opened when the first text needs it, and kept; ASCII needs none. Use a `Converter`
/// from one thread at a time; one that was moved from can be destroyed or assigned to.
class SIVANE_API Converter {
 public:
  /// Throws `std::invalid_argument` where iconv does not know a table of the options, and `std::bad_alloc`.
  explicit Converter(Options options = {});
  ~Converter();
  /// Takes the tables that are open.
  Converter(Converter&& other) noexcept;
  /// The same.
  Converter& operator=(Converter&& other) noexcept;

  /// A text with the selector that it dropped. No bytes are a failure: throws `std::bad_alloc`, or
  /// `std::runtime_error` where the system's iconv is without a table that the text needs.
  std::string utf8(Text const& text);
  /// A field as it was broadcast, selector included, which is what members of type `std::string` hold; throws
  /// the same.
  std::string utf8(std::string_view field);

 private:
  class Tables;
  std::unique_ptr<Tables> tables_;
};

}  // namespace sivane::charset
