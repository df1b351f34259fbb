// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/terminal.h"

#include <langinfo.h>
#include <locale.h>
#include <wchar.h>

#include <algorithm>
#include <ostream>

#include "text/conversion.h"

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

std::string for_terminal(std::u32string_view text) {
  static std::string const encoding = terminal_encoding();
  return from_unicode(text, encoding);
}

int width_of(std::u32string_view text) {
  // The user's locale may know fewer characters than the terminal shows.
  static locale_t const unicode = characters_of("C.UTF-8");
  locale_t const before = unicode != nullptr ? uselocale(unicode) : uselocale(nullptr);
  int width = 0;
  for (char32_t const c : text) {
    int const cells = wcwidth(static_cast<wchar_t>(c));
    width += cells < 0 ? 1 : cells;
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
    std::u32string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i] + std::u32string(static_cast<std::size_t>(widths[i] - width_of(row[i])) + 2, U' ');
    }
    out << for_terminal(line.substr(0, line.find_last_not_of(U' ') + 1)) << '\n';
  }
}

std::u32string plain(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

std::u32string plain(long long number) { return plain(std::to_string(number)); }

}  // namespace inspect
