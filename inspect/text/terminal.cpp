// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/terminal.h"

#include <langinfo.h>
#include <locale.h>
#include <sivane/charset/encoder.h>
#include <sivane/charset/utf8.h>
#include <wchar.h>

#include <algorithm>
#include <ostream>

namespace inspect {

namespace {

/// A locale for characters alone, which leaves that of the process as it is: dumps go by none.
locale_t characters_of(char const* name) { return newlocale(LC_CTYPE_MASK, name, nullptr); }

std::string terminal_encoding() {
  locale_t const users = characters_of("");
  if (users == nullptr) return "UTF-8";
  std::string const encoding = nl_langinfo_l(CODESET, users);
  freelocale(users);
  return encoding == "ANSI_X3.4-1968" ? "UTF-8" : encoding;
}

}  // namespace

std::string for_terminal(std::string_view text) {
  static std::string const encoding = terminal_encoding();
  bool const is_ascii =
      std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (is_ascii || encoding == "UTF-8") return std::string(text);
  static sivane::charset::Encoder encoder(encoding);
  return encoder.encode(text);
}

int width_of(std::string_view text) {
  // The user's locale may know fewer characters than the terminal shows.
  static locale_t const unicode = characters_of("C.UTF-8");
  locale_t const before = unicode != nullptr ? uselocale(unicode) : uselocale(nullptr);
  int width = 0;
  while (!text.empty()) {
    sivane::charset::Utf8 const next = sivane::charset::first_of_utf8(text);
    int const cells = wcwidth(static_cast<wchar_t>(next.character));
    width += cells < 0 ? 1 : cells;
    text.remove_prefix(next.size);
  }
  uselocale(before);
  return width;
}

void Columns::print(std::ostream& out) const {
  std::vector<int> widths;
  for (auto const& row : rows_) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], width_of(row[i]));
  }
  for (auto const& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i] + std::string(static_cast<std::size_t>(widths[i] - width_of(row[i])) + 2, ' ');
    }
    out << for_terminal(line.substr(0, line.find_last_not_of(' ') + 1)) << '\n';
  }
}

}  // namespace inspect
