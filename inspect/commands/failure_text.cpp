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

/// "PID 0x0010, NIT 0x40, byte 37, at 1,274,120: ", as far as it is known.
std::string place_text(Section const& section, std::string_view class_name, int offset) {
  std::string text;
  if (section.pid != Section::no_pid) text += "PID " + c_hexadecimal(section.pid, 2) + ", ";
  bool const has_table = !section.bytes.empty() || class_name != "-";
  if (has_table) text += table_text(section, class_name);
  if (offset >= 0) text += ", byte " + grouped(offset);
  if (section.offset >= 0) text += ", at " + grouped(section.offset);
  return text + (text.empty() ? "" : ": ");
}

}  // namespace

std::string reason_text(int code, std::string const& what) {
  if (!what.empty()) return what;
  switch (code) {
    case sivane::error::item_length_error:
      return "the payload is no whole number of entries";
    case sivane::error::syntax_error:
      return "a bit of the header is wrong, or a loop does not end where it should";
    default:
      return "error " + std::to_string(code);
  }
}

std::string failure_text(Section const& section, Failure const& failure) {
  return place_text(section, failure.class_name, failure.offset) + reason_text(failure.code, failure.what);
}

std::string problem_text(Section const& section, std::string_view class_name,
                         sivane::ParseProblem const& problem) {
  std::string const descriptor = problem.tag < 0 ? "" : "descriptor " + c_hexadecimal(problem.tag, 1) + ": ";
  return place_text(section, class_name, problem.offset) + descriptor +
         reason_text(problem.code, problem.text);
}

}  // namespace inspect
