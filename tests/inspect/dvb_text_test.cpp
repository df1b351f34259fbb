// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The texts that broadcasts are written in, and how many cells they take.

#include "text/dvb_text.h"

#include <gtest/gtest.h>

#include "run_inspect.h"
#include "text/conversion.h"
#include "text/terminal.h"

namespace sivane::testing {

namespace {

struct Case {
  char const* field;  // in hexadecimal
  char const* text;   // in UTF-8
};

std::string shown(Bytes const& field) {
  return ::inspect::from_unicode(
      ::inspect::dvb_text({reinterpret_cast<char const*>(field.data()), field.size()}), "UTF-8");
}

template <std::size_t count>
void expect(Case const (&cases)[count]) {
  for (auto const& [field, text] : cases) EXPECT_EQ(shown(hex(field)), text) << field;
}

}  // namespace

TEST(InspectText, ReadsEveryCharacterTable) {
  expect({{"", ""},
          {"01 C8 E2 DD EF", "Штня"},
          {"02 C7 E4", "ال"},
          {"03 C1 F9", "Αω"},
          {"04 E0 FA", "את"},
          {"05 FD FE D0", "ışĞ"},
          {"06 BD FF", "―ĸ"},
          {"07 A1 DF", "ก฿"},
          {"09 A1 FF", "”’"},
          {"0A A1 D0", "ḂŴ"},
          {"0B A4 BC", "€Œ"},
          {"10 00 01 E9 A4", "é¤"},
          {"10 00 02 A3", "Ł"},
          {"10 00 05 C8", "Ш"},
          {"10 00 0F A4", "€"},
          {"11 00 41 4E 2D D8 3D DE 00", "A中😀"},
          {"12 41 B0 A1", "A가"},
          {"13 41 D6 D0", "A中"},
          {"14 4E 2D 65 87", "中文"},
          {"15 E4 B8 AD F0 9F 98 80", "中😀"}});
}

TEST(InspectText, TheDefaultTableHasDiacriticsInFrontOfLettersAndTheEuro) {
  expect({{"43 61 66 C2 65", "Café"},
          {"C1 41 C2 42 C3 43 C4 4E C5 55 C6 47 C7 5A C8 55", "ÀB\u0301ĈÑŪĞŻÜ"},
          {"CA 41 CB 43 CD 4F CE 41 CF 53", "ÅÇŐĄŠ"},
          {"CF 67 C1 77 C4 79", "g\u030Cw\u0300y\u0303"},  // of which iconv knows none
          {"C8 20 C1 20", "¨ \u0300"},
          {"A4 35 20 C8 75 A4", "€5 ü€"},
          {"C2 A4", "\uFFFD€"},
          {"A8 E2 F2 E1 F9 FB", "¤ĐđÆøß"},
          {"47 72 FC 6E", "Grþn"}});  // Latin-1 without a selector is not guessed
}

TEST(InspectText, LetsNoControlCharacterThrough) {
  expect({{"86 41 87 8A 42", "A B"},
          {"41 1B 5B 33 31 6D 07 80 9B 33 31 6D 7F 00 42", "A[31m31mB"},
          {"41 0D 0A 42 09 43", "A B C"},
          {"05 86 41 87 8A 42 9B 1B", "A B"},
          {"11 E0 86 00 41 E0 87 E0 8A 00 42 00 1B 00 9B 20 2E 20 66 FE FF", "A B"},
          {"12 E0 86 B0 A1 E0 87 E0 8A B0 A1 8A 41 1B 9B", "가 가 A"},
          {"13 E0 86 D6 D0 E0 87 E0 8A D6 D0 8A 41 1B 9B", "中 中 A"},
          {"15 C2 86 41 EE 82 86 EE 82 87 EE 82 8A 42 C2 8A 43 1B C2 9B", "A B C"},
          {"00 41 8A 42 1B 9B", "A B"}});
}

TEST(InspectText, ReplacesWhatIsMalformedOrCutOff) {
  expect({{"11 00 41 4E", "A\uFFFD"},
          {"11 D8 3D", "\uFFFD"},
          {"11 D8 3D 00 41", "\uFFFDA"},
          {"11 DE 00 00 41", "\uFFFDA"},
          {"12 B0 41", "\uFFFDA"},
          {"12 41 B0", "A\uFFFD"},
          {"12 E0", "\uFFFD"},
          {"13 FF 41", "\uFFFDA"},
          {"15 41 E4 B8", "A\uFFFD\uFFFD"},
          {"15 C0 80 ED A0 80 41", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA"},
          {"07 FF", "\uFFFD"},
          {"43 C2", "C\uFFFD"},
          {"C0 C9 41", "\uFFFD\uFFFDA"}});
}

TEST(InspectText, OfAnUnknownTableShowsAsciiAlone) {
  for (char const* const selector : {"00", "08", "0C", "0F", "16", "1E", "10 00 00", "10 00 0C", "10 00 10",
                                     "10 00 FF", "10 01 02", "1F 02"}) {
    EXPECT_EQ(shown(hex(selector) + hex("41 E9 42")), "A\uFFFDB") << selector;
  }
}

TEST(InspectText, ASelectorAloneIsNoText) {
  for (unsigned char selector = 0; selector < 0x20; ++selector) EXPECT_EQ(shown({selector}), "") << +selector;
  expect({{"10 00", ""}, {"10 00 02", ""}, {"1F 01", ""}});
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

TEST(InspectText, CountsTheCellsOfATerminal) {
  std::pair<char32_t const*, int> const texts[] = {
      {U"", 0},           {U"A\u00e9", 2}, {U"e\u0301", 1},      {U"\u4e2d\u6587!", 5}, {U"\uac00\uff01", 4},
      {U"\U0001F600", 2}, {U"\u2713", 1},  {U"\u0E01\u0E34", 1}, {U"\uFFFD", 1}};
  for (auto const& [text, cells] : texts) EXPECT_EQ(::inspect::width_of(text), cells) << cells;
}

}  // namespace sivane::testing
