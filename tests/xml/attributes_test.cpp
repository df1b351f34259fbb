// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Each form of an attribute in both directions, and what becomes of values and references where the DOM
// refuses.
#include <gtest/gtest.h>
#include <sivane/xml/attributes.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>

#include "memory_dom.h"

namespace sivane::testing {
namespace {

using Bytes = std::vector<unsigned char>;
using Ints = std::vector<int>;
using Ulongs = std::vector<unsigned long>;

/// An element with at most one attribute, "a".
struct Fixture {
  MemoryDom dom;
  CComPtr<IXMLDOMDocument> document = dom.document();
  CComPtr<IXMLDOMElement> element = dom.element(u"e");

  template <class... Value>
  long add(Value const&... value) {
    return AddAttribute(document.get(), element.get(), u"a", value...);
  }
  template <class... Target>
  long get(Target&&... target) const {
    CComPtr<IXMLDOMNamedNodeMap> map;
    element->get_attributes(map.receive());
    return GetAttributeValue(map.get(), u"a", target...);
  }
};

template <class... Value>
std::string saved(Value const&... value) {
  Fixture fixture;
  EXPECT_EQ(fixture.add(value...), S_OK);
  return written(fixture.element.get());
}

/// What a text, or another value, makes of a value that was `before`.
template <class T, class Stored = std::u16string>
T loaded(Stored const& stored, T before = {}) {
  Fixture fixture;
  fixture.add(tagVARIANT(stored));
  EXPECT_EQ(fixture.get(before), S_OK);
  return before;
}

template <class T>
void expect_round_trip(T const& value, std::u16string const& text) {
  EXPECT_EQ(saved(value), saved(tagVARIANT(text)));
  EXPECT_EQ(loaded<T>(text), value);
}

TEST(Attributes, ComeBackInEveryForm) {
  expect_round_trip(0, u"0");
  expect_round_trip(-1, u"-1");
  expect_round_trip(std::numeric_limits<int>::min(), u"-2147483648");
  expect_round_trip(2147483647UL, u"2147483647");
  expect_round_trip(2147483648UL, u"-2147483648");
  expect_round_trip(4294967295UL, u"-1");
  expect_round_trip(4294967295U, u"-1");
  expect_round_trip<unsigned char>(0xFF, u"255");
  expect_round_trip(true, u"1");
  expect_round_trip(false, u"0");
  expect_round_trip(0.0, u"0");
  expect_round_trip(-2.2250738585072014e-308, u"-2.2250738585072014e-308");
  expect_round_trip(474.1234, u"474.1234");
  expect_round_trip(std::numeric_limits<double>::infinity(), u"inf");
  expect_round_trip(std::string(), u"");
  expect_round_trip(std::string("a\xE4<\x80"), u"a\u00E4<\u0080");
  expect_round_trip(Bytes{}, u"");
  expect_round_trip(Bytes{0x0A, 0xFF}, u"0aff");
  expect_round_trip(Ints{-1, 0x12AB}, u"ffffffff000012ab");
  expect_round_trip(Ulongs{474000000}, u"1c40aa80");

  Text name;
  static_cast<std::string&>(name) = "caf\xE9";
  expect_round_trip(name, u"caf\u00E9");
  EXPECT_EQ(saved("eng"), saved(tagVARIANT(u"eng")));
  EXPECT_EQ(saved(std::string("ab\0c", 4)), saved("ab"));
  EXPECT_EQ(saved(tagVARIANT()), saved(""));
  EXPECT_EQ(loaded<int>(-42), -42);
  EXPECT_EQ(loaded<std::string>(0.1), "0.1");

  unsigned char buffer[] = {0x00, 0x7F, 0xFF}, back[] = {9, 9, 9};
  EXPECT_EQ(saved(buffer, 3), saved("007fff"));
  EXPECT_EQ(saved(buffer, -1), saved(""));
  Fixture fixture;
  fixture.add(buffer, 3);
  EXPECT_EQ(fixture.get(back, 2), S_OK);
  EXPECT_EQ(back[1], 0x7F);
  EXPECT_EQ(back[2], 9);
}

/// Those of bytes 0x80 to 0x9F in windows-1252, and the neighbours of surrogates.
TEST(Attributes, CodePointsBecomeBytes) {
  std::string bytes;
  for (int b = 0x01; b <= 0xFF; ++b) bytes += static_cast<char>(b);
  std::u16string wide(bytes.begin(), bytes.end());
  for (char16_t& c : wide) c &= 0xFF;
  expect_round_trip(bytes, wide);
  EXPECT_EQ(loaded<std::string>(u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039"
                                u"\u0152\u008D\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                                u"\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178"),
            bytes.substr(0x7F, 32));
  EXPECT_EQ(loaded<std::string>(u"\u0100\uFFFD."), "??.");
  using Row = std::pair<std::vector<char16_t>, std::string>;
  for (auto const& [units, expected] :
       {Row{{0xD800, 0xDC00, '.'}, "?."}, Row{{0xDBFF, 0xDFFF, '.'}, "?."},
        Row{{0xD7FF, 0xDC00, 0xDBFF}, "???"}, Row{{0xDC00, 0xD800, '.'}, "??."},
        Row{{0xDBFF, 0xE000, 0xD800}, "???"}, Row{{0xD800, 0xDBFF, 0xDBFF}, "???"}}) {
    EXPECT_EQ(loaded<std::string>({units.begin(), units.end()}), expected);
  }
}

TEST(Attributes, NumbersAreReadAsFarAsTheyGo) {
  std::pair<std::int64_t, std::vector<std::u16string>> const rows[] = {
      {0, {u"", u"abc", u"0x10", u"+-7", u"--7", u"- 7", u"-99999999999999999999"}},
      {7, {u" \t\r\n\v\f+7", u"007\u0661"}},
      {12, {u"12 34", u"12,5"}},
      {1, {u" +01x"}},
      {-1, {u"-1", u"4294967295", u"99999999999999999999"}},
      {257, {u"257"}},
      {2, {u"4294967298"}}};
  for (auto const& [number, texts] : rows) {
    for (std::u16string const& text : texts) {
      SCOPED_TRACE(::testing::PrintToString(text));
      EXPECT_EQ(loaded<int>(text), number);
      EXPECT_EQ(loaded<unsigned long>(text), number & 0xFFFFFFFF);
      EXPECT_EQ(loaded<unsigned int>(text), number & 0xFFFFFFFF);
      EXPECT_EQ(loaded<unsigned char>(text), number & 0xFF);
      EXPECT_EQ(loaded(text, number != 1), number == 1);
    }
  }
}

TEST(Attributes, DoublesOfAnyText) {
  double const infinity = std::numeric_limits<double>::infinity();
  std::u16string const zeros(400, u'0');
  std::pair<double, std::vector<std::u16string>> const rows[] = {
      {0, {u"", u"e5", u"0x10", u"++7", u"+ 7", u"0e999", u"1e-999", u"1e-99999999999999999999"}},
      {0, {u"." + zeros + u"1", u"1" + zeros + u"e-999"}},
      {1, {u"1,5", u"1e", u"." + zeros + u"1e401"}},
      {150, {u" +1.5e2x"}},
      {0.5, {u".5"}},
      {4.9e-324, {u"4.9e-324"}},
      {infinity, {u"1e999", u"1e99999999999999999999", u"1" + zeros, u"." + zeros + u"1e999", u"infinity"}},
      {-infinity, {u"-1e999", u"-INF"}}};
  for (auto const& [value, texts] : rows) {
    for (auto const& text : texts) EXPECT_EQ(loaded<double>(text), value) << ::testing::PrintToString(text);
  }
  EXPECT_TRUE(std::signbit(loaded<double>(u"-1e-999")));
  EXPECT_TRUE(std::isnan(loaded<double>(u"nan(1)")));
}

TEST(Attributes, ArraysAreAppendedToAndTextsReplaced) {
  EXPECT_EQ(loaded(u"0aff", Bytes{1, 2}), (Bytes{1, 2, 0x0A, 0xFF}));
  EXPECT_EQ(loaded(u"0000000A", Ints{1}), (Ints{1, 10}));
  EXPECT_EQ(loaded(u"ffffffff", Ulongs{1}), (Ulongs{1, 4294967295}));
  EXPECT_EQ(loaded(u"abc", Bytes{1}), Bytes{1});
  EXPECT_EQ(loaded(u"1234567", Ints{1}), Ints{1});
  EXPECT_EQ(loaded(u"new", std::string("old text")), "new");
  Text text;
  text.parse(2, Bytes{5, 0x41}.data());
  EXPECT_EQ(loaded(u"new", text), "new");
  EXPECT_EQ(loaded(u"new", text).selector(), -1);
}

TEST(Attributes, CharactersFillTheirRoomUpToAZero) {
  using Row = std::tuple<char16_t const*, int, std::string>;
  for (auto const& [text, room, expected] :
       {Row{u"english", 4, {"eng\0#", 5}}, Row{u"en", 4, {"en\0\0#", 5}}, Row{u"", 2, {"\0\0###", 5}},
        Row{u"en", 1, {"\0####", 5}}, Row{u"en", 0, "#####"}, Row{u"en", -1, "#####"}}) {
    Fixture fixture;
    fixture.add(tagVARIANT(std::u16string(text)));
    char code[] = "#####";
    EXPECT_EQ(fixture.get(code, room), S_OK);
    EXPECT_EQ(std::string(code, 5), expected);
  }
}

/// Both answers that refuse, at each of the first `count` operations, and at last none; `step` gives the
/// result.
template <class Step, class Check>
void with_refusals(Fixture& fixture, int results, int no_objects, Step step, Check check) {
  for (auto const& [refusal, count] : {std::pair(MemoryDom::Refusal::result, results),
                                       std::pair(MemoryDom::Refusal::no_object, no_objects)}) {
    for (int n = 1; n <= count; ++n) {
      fixture.dom.refuse(n, refusal);
      EXPECT_EQ(step(), E_FAIL) << n;
      EXPECT_EQ(fixture.dom.operations(), n);
      fixture.dom.refuse(0);
      check();
    }
  }
  EXPECT_EQ(step(), S_OK);
}

/// Every form is saved by the same function, and loaded by another.
TEST(Attributes, RefusedOnesLeaveNothingBehind) {
  Fixture fixture;
  with_refusals(
      fixture, 3, 1, [&] { return fixture.add(Bytes{1}); }, [&] { EXPECT_EQ(fixture.dom.objects(), 2); });
  fixture.add("two");
  EXPECT_EQ(written(fixture.element.get()), "e a=\"two\"\n");
  EXPECT_EQ(fixture.dom.objects(), 3);
  fixture.element = {};
  EXPECT_EQ(fixture.dom.objects(), 1);
}

template <class T>
void expect_untouched_by_failures(T& value, std::u16string const& text) {
  T const before = value;
  Fixture fixture;
  EXPECT_EQ(fixture.get(value), E_FAIL);
  fixture.add(tagVARIANT(text));
  CComPtr<IXMLDOMNamedNodeMap> map;
  fixture.element->get_attributes(map.receive());
  EXPECT_EQ(GetAttributeValue(map.get(), u"A", value), E_FAIL);
  with_refusals(
      fixture, 2, 1, [&] { return GetAttributeValue(map.get(), u"a", value); },
      [&] {
        EXPECT_EQ(value, before);
        EXPECT_EQ(fixture.dom.objects(), 4);  // the document, the element, its attribute and the map
      });
  EXPECT_NE(value, before);
}

TEST(Attributes, FailuresLeaveTheValueAlone) {
  unsigned long number = 5;
  bool flag = true;
  Bytes bytes{5};
  expect_untouched_by_failures(number, u"7");
  expect_untouched_by_failures(flag, u"7");
  expect_untouched_by_failures(bytes, u"07");
}

/// Where numbers are written as "1.234,5": in C if such a locale is installed, in C++ anyway.
TEST(Attributes, KnowNoLocale) {
  struct Commas : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };
  auto const before = std::locale::global(std::locale(std::locale::classic(), new Commas));
  for (char const* const name : {"fr_FR.UTF-8", "de_DE.UTF-8"}) std::setlocale(LC_ALL, name);
  expect_round_trip(1234567.5, u"1234567.5");
  expect_round_trip(1234567, u"1234567");
  EXPECT_EQ(loaded<double>(u"1,5"), 1);
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
}

}  // namespace
}  // namespace sivane::testing
