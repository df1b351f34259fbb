// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <memory>
#include <string_view>

namespace inspect {

/// Writes JSON to a stream, value by value, without blanks. Calls must nest as JSON does; several values one
/// behind the other are JSON lines where `end_line` stands between them.
class JsonWriter {
 public:
  /// `out` must outlive the object; it has everything once `end_line` or the destructor ran.
  explicit JsonWriter(std::ostream& out);
  ~JsonWriter();
  JsonWriter(JsonWriter const&) = delete;
  JsonWriter& operator=(JsonWriter const&) = delete;

  void begin_object();
  void end_object();
  void begin_array();
  void end_array();
  /// The name of the member whose value comes next.
  void key(std::string_view name);

  /// UTF-8; a byte that belongs to no character becomes U+FFFD.
  void text(std::string_view utf8);
  void number(long long value);
  /// null where it is not finite.
  void real(double value);
  void flag(bool value);
  void null();
  /// What is JSON already.
  void raw(std::string_view value);

  // A member in one call.
  void member(std::string_view name, std::string_view utf8) { key(name), text(utf8); }
  void member(std::string_view name, long long value) { key(name), number(value); }

  /// A line feed, behind a whole value.
  void end_line();

 private:
  struct Parts;
  void pass_on(std::size_t threshold);

  std::ostream& out_;
  std::unique_ptr<Parts> parts_;
};

}  // namespace inspect
