// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/field_json.h"

#include <sivane/descriptors/extended/extended.h>
#include <sivane/foundation/hex.h>
#include <sivane/foundation/time.h>

#include <cstdint>
#include <cstdio>
#include <string>

namespace inspect {

namespace {

bool is_within(int value, int first, int last) { return first <= value && value <= last; }

bool is_defined(sivane::DateTime const& date) {
  return is_within(date.month, 1, 12) && is_within(date.day, 1, 31) && is_within(date.hour, 0, 23) &&
         is_within(date.minute, 0, 59) && is_within(date.second, 0, 59);
}

bool is_defined(sivane::Duration const& duration) {
  return is_within(duration.hour, 0, 99) && is_within(duration.minute, 0, 59) &&
         is_within(duration.second, 0, 59);
}

}  // namespace

sivane::charset::Options with_line_breaks(sivane::charset::Options options) {
  options.line_break.assign(1, '\n');  // g++ 12 warns of an assignment
  return options;
}

void FieldJson::name(sivane::Field const& field) {
  if (!field.name.empty()) json_.key(field.name);
}

void FieldJson::number(sivane::Field const& field, std::int64_t value) {
  name(field);
  json_.number(static_cast<std::int32_t>(value));
  if (names_ == nullptr || field.name.empty()) return;
  CodeNames::Name const name_of_code = names_->behind(field.name, value);
  if (!name_of_code.text.empty()) json_.member(name_of_code.member, name_of_code.text);
}

void FieldJson::real(sivane::Field const& field, double value) {
  name(field);
  json_.real(value);
}

void FieldJson::flag(sivane::Field const& field, bool value) {
  name(field);
  json_.flag(value);
}

void FieldJson::text(sivane::Field const& field, std::string_view bytes) {
  name(field);
  json_.text(texts_.utf8(bytes));
}

void FieldJson::string(sivane::Field const& field, std::string_view value) {
  name(field);
  json_.text(value);
}

void FieldJson::code(sivane::Field const& field, std::string_view letters) {
  string(field, letters.substr(0, letters.find('\0')));
}

void FieldJson::bytes(sivane::Field const& field, unsigned char const* data, std::size_t size) {
  name(field);
  std::string digits;
  sivane::bin2str(data, digits, static_cast<int>(size));
  json_.text(digits);
}

void FieldJson::date(sivane::Field const& field, sivane::DateTime const& date) {
  name(field);
  if (!is_defined(date)) return json_.null();
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", date.year, date.month, date.day,
                date.hour, date.minute, date.second);
  json_.text(text);
}

void FieldJson::duration(sivane::Field const& field, sivane::Duration const& duration) {
  name(field);
  if (!is_defined(duration)) return json_.null();
  char text[40];
  std::snprintf(text, sizeof text, "PT%dH%dM%dS", duration.hour, duration.minute, duration.second);
  json_.text(text);
}

void FieldJson::begin_list(sivane::Field const& field, std::size_t) {
  name(field);
  json_.begin_array();
}

void FieldJson::end_list() { json_.end_array(); }

void FieldJson::begin_record(sivane::Field const& field) {
  name(field);
  json_.begin_object();
}

void FieldJson::end_record() { json_.end_object(); }

void FieldJson::begin_descriptor(std::string_view element, sivane::DescriptorBase const& descriptor) {
  json_.begin_object();
  json_.member("tag", descriptor.tag);
  json_.member("name", element);
  open_ = &descriptor;
}

void FieldJson::end_descriptor() {
  using namespace sivane::extended;
  auto const* const kept = of_all_tables_ ? dynamic_cast<sivane::DescriptorGeneral const*>(open_) : nullptr;
  auto const built = kept == nullptr ? nullptr : build(*kept, Malformed::is_nothing);
  if (built != nullptr) {
    json_.key("content");
    json_.begin_object();
    json_.member("name", built->get_tag_text());
    built->visit(*this);
    json_.end_object();
  }
  json_.end_object();
}

}  // namespace inspect
