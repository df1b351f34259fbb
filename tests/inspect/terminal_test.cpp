// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What a terminal is shown, and how many cells that takes.
#include "text/terminal.h"

#include <gtest/gtest.h>

#include "text/visible.h"

namespace sivane::testing {

TEST(InspectText, ShowsWhatCouldSteerATerminal) {
  std::pair<std::string_view, std::string_view> const texts[] = {
      {"a\n\t\x1b[m\x07\x7f", "a\n\\x09\\x1b[m\\x07\\x7f"},
      {"\xc3\xa9 \xe4\xb8\xad \xf0\x9f\x98\x80", "\xc3\xa9 \xe4\xb8\xad \xf0\x9f\x98\x80"},
      {"\x9b \xc2\x9b \xe2\x80\xae", "\\x9b \\xc2\\x9b \\xe2\\x80\\xae"},
      {"\xc0\x9b \xed\xa0\x80 \xf4\x90\x80\x80 \xe4\xb8",
       "\\xc0\\x9b \\xed\\xa0\\x80 \\xf4\\x90\\x80\\x80 \\xe4\\xb8"}};
  for (auto const& [text, shown_text] : texts) EXPECT_EQ(::inspect::visible(text), shown_text);
}

TEST(InspectText, CountsTheCellsOfATerminal) {
  std::pair<char const*, int> const texts[] = {
      {"", 0},           {"A\u00e9", 2}, {"e\u0301", 1},      {"\u4e2d\u6587!", 5}, {"\uac00\uff01", 4},
      {"\U0001F600", 2}, {"\u2713", 1},  {"\u0E01\u0E34", 1}, {"\uFFFD", 1}};
  for (auto const& [text, cells] : texts) EXPECT_EQ(::inspect::width_of(text), cells) << cells;
}

}  // namespace sivane::testing
