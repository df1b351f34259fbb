// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "report/page.h"

#include <algorithm>
#include <ostream>

#include "report/page_parts.h"

namespace inspect {

namespace {

/// What could end the element that holds the data, or a line of a script, as escapes of JSON: it stands
/// within strings alone.
std::string_view escape_at(std::string_view json) {
  switch (json.front()) {
    case '<':
      return "\\u003c";
    case '>':
      return "\\u003e";
    case '&':
      return "\\u0026";
    default:
      break;
  }
  if (json.starts_with("\xE2\x80\xA8")) return "\\u2028";
  return json.starts_with("\xE2\x80\xA9") ? "\\u2029" : "";
}

void write_escaped(std::ostream& out, std::string_view json) {
  constexpr std::size_t bytes_of_separator = 3;
  while (!json.empty()) {
    std::size_t const plain = std::min(json.find_first_of("<>&\xE2"), json.size());
    out << json.substr(0, plain);
    json.remove_prefix(plain);
    if (json.empty()) return;
    std::string_view const escape = escape_at(json);
    bool const is_separator = json.front() == '\xE2' && !escape.empty();
    out << (escape.empty() ? json.substr(0, 1) : escape);
    json.remove_prefix(is_separator ? bytes_of_separator : 1);
  }
}

}  // namespace

void write_page(std::ostream& out, std::string_view json) {
  std::string_view const page = report_page;
  std::string_view const style_mark = "/*style*/", data_mark = "{\"data\":0}", script_mark = "/*script*/";
  std::size_t const style = page.find(style_mark), data = page.find(data_mark),
                    script = page.find(script_mark);
  out << page.substr(0, style) << report_style;
  out << page.substr(style + style_mark.size(), data - style - style_mark.size());
  write_escaped(out, json);
  out << page.substr(data + data_mark.size(), script - data - data_mark.size());
  out << report_script << page.substr(script + script_mark.size());
}

}  // namespace inspect
