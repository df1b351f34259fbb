// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/fields.h>
#include <sivane/foundation/reader.h>

#include <iosfwd>
#include <string>

namespace sivane {

// The fixed value forms of DVB (ETSI EN 300 468, Annex C; ETSI TS 101 812, 10.5). None of them checks its
// input: a BCD digit above 9 or an impossible date is stored as it computes, and the undefined value of all
// bits set too. `operator<<` switches the stream to decimal and leaves it so; `dump_state` prints in the
// stream's base.

/// A UTC date and time: 16 bits of Modified Julian Date and 24 bits of BCD. Starts as 1/1-1 1:1:1.
class SIVANE_API DateTime {
 public:
  DateTime() = default;
  /// From 5 bytes.
  explicit DateTime(unsigned char const* data);
  /// From where the reader is, and steps over it.
  explicit DateTime(Reader& reader);

  /// Prints its lines.
  void dump_state(std::ostream& os) const;
  /// As an element of a document, each member an attribute.
  void Parse(void* node);
  /// Saves it on its element, which `document` has made. False once the document refuses.
  bool SaveSection(void* document, void* element) const;
  SIVANE_FIELDS(DateTime)
  /// The six members as decimal numbers with a blank between, day first.
  std::string get_date_as_text() const;
  /// Reads what `get_date_as_text` writes. Members that the text does not reach stay. Always true.
  bool set_date_from_text(char const* text);

  int day = 1;     ///< 1 to 31
  int month = 1;   ///< 1 to 12
  int year = 1;    ///< in full
  int hour = 1;    ///< 0 to 23
  int minute = 1;  ///< 0 to 59
  int second = 1;  ///< 0 to 59
};
SIVANE_API std::ostream& operator<<(std::ostream& os, DateTime const& date);

/// A time of day or a span: hours, minutes and seconds, 24 bits of BCD.
class SIVANE_API Duration {
 public:
  Duration() = default;
  /// From 3 bytes.
  explicit Duration(unsigned char const* data);
  /// From where the reader is, and steps over it.
  explicit Duration(Reader& reader);

  /// Prints its lines.
  void dump_state(std::ostream& os) const;
  /// The three members as decimal numbers with a blank between.
  std::string get_time_as_text() const;
  /// Reads what `get_time_as_text` writes. Members that the text does not reach stay. Always true.
  bool set_time_from_text(char const* text);

  int hour = 0;    ///< 0 to 99
  int minute = 0;  ///< 0 to 59
  int second = 0;  ///< 0 to 59
};
SIVANE_API std::ostream& operator<<(std::ostream& os, Duration const& duration);

/// An offset from UTC without its sign: hours and minutes, 16 bits of BCD.
class SIVANE_API TimeOffset {
 public:
  TimeOffset() = default;
  /// From 2 bytes.
  explicit TimeOffset(unsigned char const* data);
  /// From where the reader is, and steps over it.
  explicit TimeOffset(Reader& reader);
  /// As an element of a document, each member an attribute.
  void Parse(void* node);
  /// Saves it on its element, which `document` has made. False once the document refuses.
  bool SaveSection(void* document, void* element) const;
  SIVANE_FIELDS(TimeOffset)

  int hour = 0;    ///< 0 to 23
  int minute = 0;  ///< 0 to 59
};
SIVANE_API std::ostream& operator<<(std::ostream& os, TimeOffset const& offset);

}  // namespace sivane
