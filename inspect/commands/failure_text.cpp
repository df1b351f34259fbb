// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/failure_text.h"

#include <sivane/sivane.h>

#include "console.h"
#include "text/hexadecimal.h"

namespace inspect {

namespace {

std::string upper(std::string_view name) {
  std::string text(name);
  for (char& c : text) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return text;
}

std::string table_text(Section const& section, std::string_view class_name) {
  std::string const name = class_name == "-" ? "table" : upper(class_name);
  return section.bytes.empty() ? name : name + ' ' + c_hexadecimal(section.table_id(), 1);
}

/// The library's own text, or what its code means where it gives none.
std::string reason_text(Failure const& failure) {
  if (!failure.what.empty()) return failure.what;
  switch (failure.code) {
    case sivane::error::item_length_error:
      return "the payload is no whole number of entries";
    case sivane::error::syntax_error:
      return "a bit of the header is wrong, or a loop does not end where it should";
    default:
      return "error " + std::to_string(failure.code);
  }
}

}  // namespace

std::string failure_text(Section const& section, Failure const& failure) {
  std::string text;
  if (section.pid != Section::no_pid) text += "PID " + c_hexadecimal(section.pid, 2) + ", ";
  bool const has_table = !section.bytes.empty() || failure.class_name != "-";
  if (has_table) text += table_text(section, failure.class_name);
  if (failure.offset >= 0) text += ", byte " + grouped(failure.offset);
  if (section.offset >= 0) text += ", at " + grouped(section.offset);
  return text + (text.empty() ? "" : ": ") + reason_text(failure);
}

}  // namespace inspect
