// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The texts that broadcasts are written in, as UTF-8.
#include <gtest/gtest.h>
#include <sivane/charset/charset.h>
#include <sivane/charset/encoder.h>

#include <new>
#include <stdexcept>
#include <utility>

#include "case_file.h"
#include "iconv_calls.h"
#include "section_builder.h"

namespace sivane::testing {
namespace {

std::string field_of(Bytes const& bytes) { return {bytes.begin(), bytes.end()}; }

Text text_of(Bytes const& field) {
  Text text;
  text.parse(static_cast<int>(field.size()), field.data());
  return text;
}

charset::Options on_one_line() {
  charset::Options options;
  options.line_break = " ";
  return options;
}

TEST(Converter, ReadsEveryCharacterTable) {
  charset::Converter converter(on_one_line());
  for (Block const& block : read_blocks("charset/cases/texts.txt")) {
    for (auto const& [text, number] : block.lines) {
      std::size_t const bar = text.find(" | ");
      ASSERT_NE(bar, std::string::npos) << text;
      Bytes const field = hex(text.substr(0, bar));
      std::string const where = "texts.txt:" + std::to_string(number) + ' ' + block.title;
      EXPECT_EQ(converter.utf8(field_of(field)), text.substr(bar + 3)) << where;
      EXPECT_EQ(converter.utf8(text_of(field)), text.substr(bar + 3)) << where << ", selector apart";
    }
  }
}

TEST(Converter, WritesControlsAsTheHostWants) {
  charset::Options options;
  options.emphasis_on = "<";
  options.emphasis_off = ">";
  charset::Converter converter(options);
  EXPECT_EQ(converter.utf8(field_of(hex("41 86 42 87 8A 43 0A 44 09 45"))), "A<B>\nC\nD E");
  EXPECT_EQ(converter.utf8(field_of(hex("11 E0 86 00 42 E0 87 E0 8A"))), "<B>\n");
}

struct TableRow {
  char const *default_table, *overrule, *field, *text;
};

TEST(Converter, TakesTheTablesOfTheHost) {
  for (auto const& [default_table, overrule, field, text] : {
           TableRow{"ISO-8859-1", "", "E9 A4 D0", "\u00e9\u00a4\u00d0"},
           TableRow{"ISO-8859-1", "", "05 FD", "\u0131"},      // what is selected still counts
           TableRow{"", "ISO-8859-1", "05 FD 41", "\u00fdA"},  // but not when it is overruled
           TableRow{"", "utf-8", "10 00 02 C3 A9", "\u00e9"},  // whatever its size
           TableRow{"", "iso_6937", "11 C2 65 A4", "\u00e9\u20ac"},
           TableRow{"UTF-16LE", "", "41 00 E9 00 42 00", "A\u00e9B"},  // of no ASCII
           TableRow{"ISO-2022-JP", "", "41 1B 24 42 46 7C 41", "A\u65e5\ufffd"},
           TableRow{"ISO-2022-JP", "", "41 42", "AB"},  // begins anew with each text
       }) {
    charset::Options options;
    options.default_table = default_table;
    options.overrule = overrule;
    charset::Converter first(options);
    charset::Converter moved(std::move(first));
    EXPECT_EQ(moved.utf8(field_of(hex(field))), text) << default_table << ' ' << overrule << ' ' << field;
    EXPECT_EQ(moved.utf8("plain"), moved.utf8("plain"));
  }
  charset::Options unknown;
  unknown.overrule = "Klingon";
  EXPECT_THROW(charset::Converter{unknown}, std::invalid_argument);
  std::swap(unknown.overrule, unknown.default_table);
  EXPECT_THROW(charset::Converter{unknown}, std::invalid_argument);
}

TEST(Converter, OpensATableOnceAndNoneForAscii) {
  iconv_calls_since_last_time();
  charset::Converter converter;
  for (char const* const field : {"", "Plain",
                                  "\x05"
                                  "Plain",
                                  "\x12"
                                  "Plain",
                                  "\x15"
                                  "Pl\xC3\xA4in",
                                  "\x1F\x01"
                                  "Plain"}) {
    converter.utf8(field);
  }
  auto const [opened, converted] = iconv_calls_since_last_time();
  EXPECT_EQ(opened, 0);
  EXPECT_EQ(converted, 0);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(converter.utf8("caf\xC2"
                             "e") +
                  converter.utf8("\x05\xFD"),
              "caf\u00e9\u0131");
  EXPECT_EQ(iconv_calls_since_last_time().opened, 2);
}

TEST(Converter, TellsWhereThereIsNoMemory) {
  charset::Converter converter;
  refuse_to_open(3);  // twice for the table, then for what every iconv has
  EXPECT_THROW(converter.utf8("caf\xC2"
                              "e"),
               std::bad_alloc);
  refuse_to_open(2);
  EXPECT_THROW(converter.utf8("caf\xC2"
                              "e"),
               std::runtime_error);
  refuse_to_open(1);
  EXPECT_EQ(converter.utf8("caf\xC2"
                           "e"),
            "caf\u00e9");
  charset::Options options;
  options.overrule = "ISO-8859-1";
  refuse_to_open(3);
  EXPECT_THROW(charset::Converter{options}, std::bad_alloc);
}

TEST(Encoder, PutsAQuestionMarkForWhatAnEncodingLacks) {
  charset::Encoder encoder("ISO-8859-15");
  for (int i = 0; i < 2; ++i) EXPECT_EQ(encoder.encode("\u20ac\u0141a\xFF\xE4\xB8"), "\xA4?a???");
  EXPECT_EQ(charset::Encoder("UTF-16BE").encode("A\u0141"), std::string("\0A\x01\x41", 4));
  EXPECT_THROW(charset::Encoder("Klingon"), std::invalid_argument);
}

}  // namespace
}  // namespace sivane::testing
