// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>
#include <sivane/fields/field_visitor.h>

#include "text/code_names.h"
#include "text/json.h"

namespace inspect {

/// A line of JSON can hold a text of several lines, as those of the lists cannot.
sivane::charset::Options with_line_breaks(sivane::charset::Options options);

/// Writes what a visit tells as the members of the object that is open in a `JsonWriter`: numbers as
/// documents have them, texts in UTF-8, bytes in hexadecimal, dates and durations by ISO 8601.
class FieldJson final : public sivane::FieldVisitor {
 public:
  /// With `of_all_tables` the tags are those of all tables but the AIT: descriptors that are kept as bytes
  /// are told by their fields too, where there is a class for them.
  FieldJson(JsonWriter& json, sivane::charset::Converter& texts, bool of_all_tables = false)
      : json_(json), texts_(texts), of_all_tables_(of_all_tables) {}

  /// Puts behind coded members what they stand for. `names` must outlive the object.
  void add_names(CodeNames& names) { names_ = &names; }

  void number(sivane::Field const& field, std::int64_t value) override;
  void real(sivane::Field const& field, double value) override;
  void flag(sivane::Field const& field, bool value) override;
  void text(sivane::Field const& field, std::string_view bytes) override;
  void string(sivane::Field const& field, std::string_view value) override;
  void code(sivane::Field const& field, std::string_view letters) override;
  void bytes(sivane::Field const& field, unsigned char const* data, std::size_t size) override;
  void date(sivane::Field const& field, sivane::DateTime const& date) override;
  void duration(sivane::Field const& field, sivane::Duration const& duration) override;
  void begin_list(sivane::Field const& field, std::size_t size) override;
  void end_list() override;
  void begin_record(sivane::Field const& field) override;
  void end_record() override;
  void begin_descriptor(std::string_view element, sivane::DescriptorBase const& descriptor) override;
  void end_descriptor() override;

 private:
  /// The name, where the value is a member and no item of a list.
  void name(sivane::Field const& field);

  JsonWriter& json_;
  sivane::charset::Converter& texts_;
  bool of_all_tables_;
  CodeNames* names_ = nullptr;
  sivane::DescriptorBase const* open_ = nullptr;  // the descriptor that is visited
};

}  // namespace inspect
