// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "diff/print.h"

#include <ostream>

#include "text/visible.h"

namespace inspect {

namespace {

std::string joined(std::vector<std::string> const& path) {
  std::string text;
  for (std::string const& name : path) text += (text.empty() ? "" : " > ") + name;
  return text;
}

/// Both values; of what one side alone has its name is enough, unless it is a single value.
std::string values_of(Difference const& difference) {
  if (!difference.a.empty() && !difference.b.empty()) return ": " + difference.a + " | " + difference.b;
  std::string const& value = difference.a.empty() ? difference.b : difference.a;
  return value.starts_with('{') || value.starts_with('[') ? "" : ": " + value;
}

}  // namespace

void print_as_text(Differences const& differences, std::ostream& out, bool is_terminal) {
  std::string_view table;
  for (Difference const& difference : differences.found) {
    std::string text;
    if (difference.path.empty()) {
      text = difference.table + ": " + difference.change() + '\n';
    } else {
      if (table != difference.table) text = difference.table + '\n';
      text += "  " + std::string(difference.change()) + ' ' + joined(difference.path) +
              values_of(difference) + '\n';
    }
    table = difference.table;
    out << (is_terminal ? visible(text) : text);
  }
}

void print_as_json(Differences const& differences, JsonWriter& json) {
  json.begin_object();
  json.key("differences");
  json.begin_array();
  for (Difference const& difference : differences.found) {
    json.begin_object();
    json.member("change", difference.change());
    json.member("table", difference.table);
    json.key("path");
    json.begin_array();
    for (std::string const& name : difference.path) json.text(name);
    json.end_array();
    if (!difference.a.empty()) json.key("a"), json.raw(difference.a);
    if (!difference.b.empty()) json.key("b"), json.raw(difference.b);
    json.end_object();
  }
  json.end_array();
  json.key("partly_compared");
  json.begin_array();
  for (std::string const& table : differences.partly_compared) json.text(table);
  json.end_array();
  json.end_object();
  json.end_line();
}

}  // namespace inspect
