// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
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
  explicit DateTime(unsigned char const* data);
  explicit DateTime(Reader& reader);

  void dump_state(std::ostream& os) const;
  /// As an element of a document, each member an attribute.
  void Parse(void* node);
  bool SaveSection(void* document, void* element) const;
  /// The six members as decimal numbers with a blank between, day first.
  std::string get_date_as_text() const;
  /// Reads what `get_date_as_text` writes. Members that the text does not reach stay. Always true.
  bool set_date_from_text(char const* text);

  int day = 1;
  int month = 1;  ///< 1 to 12
  int year = 1;   ///< in full
  int hour = 1;
  int minute = 1;
  int second = 1;
};
SIVANE_API std::ostream& operator<<(std::ostream& os, DateTime const& date);

/// A time of day or a span: hours, minutes and seconds, 24 bits of BCD.
class SIVANE_API Duration {
 public:
  Duration() = default;
  explicit Duration(unsigned char const* data);
  explicit Duration(Reader& reader);

  void dump_state(std::ostream& os) const;
  std::string get_time_as_text() const;
  bool set_time_from_text(char const* text);

  int hour = 0;
  int minute = 0;
  int second = 0;
};
SIVANE_API std::ostream& operator<<(std::ostream& os, Duration const& duration);

/// An offset from UTC without its sign: hours and minutes, 16 bits of BCD.
class SIVANE_API TimeOffset {
 public:
  TimeOffset() = default;
  explicit TimeOffset(unsigned char const* data);
  explicit TimeOffset(Reader& reader);
  /// As an element of a document, each member an attribute.
  void Parse(void* node);
  bool SaveSection(void* document, void* element) const;

  int hour = 0;
  int minute = 0;
};
SIVANE_API std::ostream& operator<<(std::ostream& os, TimeOffset const& offset);

/// An MHP application: 32 bits of organisation and 16 of application.
class SIVANE_API ApplicationIdentifier {
 public:
  ApplicationIdentifier() = default;
  explicit ApplicationIdentifier(unsigned char const* data);
  explicit ApplicationIdentifier(Reader& reader);

  void dump_state(std::ostream& os) const;
  /// As an element of a document, each member an attribute.
  void Parse(void* node);
  bool SaveSection(void* document, void* element) const;
  /// Eight and four upper-case hexadecimal digits with a blank between.
  std::string application_identifier_as_text() const;
  /// Reads two hexadecimal numbers of either case. Members that the text does not reach stay. Always true.
  bool set_application_identifier_from_text(char const* text);

  unsigned int organisation_id = 0;
  int application_id = 0;
};

}  // namespace sivane
