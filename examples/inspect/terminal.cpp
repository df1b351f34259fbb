// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "terminal.h"

#include <langinfo.h>

#include <algorithm>
#include <clocale>
#include <ostream>

#include "conversion.h"

namespace inspect {

namespace {

struct Range {
  char32_t first, last;
};

// Unicode's East Asian Width: what is wide or fullwidth, by blocks.
constexpr Range wide[] = {{0x1100, 0x115F}, {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xA960, 0xA97C},
                          {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
                          {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

constexpr Range combining[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x064B, 0x065F},
                               {0x0E31, 0x0E31}, {0x0E34, 0x0E3A}, {0x0E47, 0x0E4E}, {0x1AB0, 0x1AFF},
                               {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}};

template <std::size_t count>
bool is_in(Range const (&ranges)[count], char32_t c) {
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [c](Range const& range) { return c >= range.first && c <= range.last; });
}

std::string terminal_encoding() {
  std::setlocale(LC_CTYPE, "");
  std::string const encoding = nl_langinfo(CODESET);
  std::setlocale(LC_CTYPE, "C");  // dumps go by no locale
  return encoding == "ANSI_X3.4-1968" ? "UTF-8" : encoding;
}

}  // namespace

std::string for_terminal(std::u32string_view text) {
  static std::string const encoding = terminal_encoding();
  return from_unicode(text, encoding);
}

int width_of(std::u32string_view text) {
  int width = 0;
  for (char32_t const c : text) width += is_in(combining, c) ? 0 : is_in(wide, c) ? 2 : 1;
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
