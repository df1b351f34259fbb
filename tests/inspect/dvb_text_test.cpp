// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The texts that broadcasts are written in, and how many cells they take.
#include "text/dvb_text.h"

#include <gtest/gtest.h>

#include "case_file.h"
#include "section_builder.h"
#include "text/conversion.h"
#include "text/terminal.h"
#include "text/visible.h"

namespace sivane::testing {

namespace {

std::string shown(Bytes const& field) {
  return ::inspect::from_unicode(
      ::inspect::dvb_text({reinterpret_cast<char const*>(field.data()), field.size()}), "UTF-8");
}

}  // namespace

TEST(InspectText, ReadsEveryCharacterTable) {
  for (Block const& block : read_blocks("inspect/cases/texts.txt")) {
    for (auto const& [text, number] : block.lines) {
      std::size_t const bar = text.find(" | ");
      ASSERT_NE(bar, std::string::npos) << text;
      EXPECT_EQ(shown(hex(text.substr(0, bar))), text.substr(bar + 3))
          << "texts.txt:" << number << ' ' << block.title;
    }
  }
}

TEST(InspectText, AnyTwoBytesEndWithoutAControlCharacter) {
  for (unsigned int first = 0; first < 0x20; ++first) {
    for (unsigned int pair = 0; pair < 0x10000; pair += 97) {
      Bytes const field = {static_cast<unsigned char>(first), static_cast<unsigned char>(pair >> 8),
                           static_cast<unsigned char>(pair), 0x1B, 0x9B};
      for (char32_t const c :
           ::inspect::dvb_text({reinterpret_cast<char const*>(field.data()), field.size()})) {
        ASSERT_TRUE(c >= 0x20 && (c < 0x7F || c > 0x9F)) << first << ' ' << pair;
      }
    }
  }
}

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
  std::pair<char32_t const*, int> const texts[] = {
      {U"", 0},           {U"A\u00e9", 2}, {U"e\u0301", 1},      {U"\u4e2d\u6587!", 5}, {U"\uac00\uff01", 4},
      {U"\U0001F600", 2}, {U"\u2713", 1},  {U"\u0E01\u0E34", 1}, {U"\uFFFD", 1}};
  for (auto const& [text, cells] : texts) EXPECT_EQ(::inspect::width_of(text), cells) << cells;
}

}  // namespace sivane::testing
