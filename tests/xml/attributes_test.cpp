// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Each form of an attribute in both directions, and what becomes of values and references where the DOM
// refuses.
#include <gtest/gtest.h>
#include <sivane/xml/attributes.h>

#include <clocale>
#include <cmath>
#include <functional>
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
  CComPtr<IXMLDOMNamedNodeMap> map() const {
    CComPtr<IXMLDOMNamedNodeMap> map;
    EXPECT_EQ(element->get_attributes(map.receive()), S_OK);
    return map;
  }
  template <class... Target>
  long get(Target&&... target) const {
    return GetAttributeValue(map().get(), u"a", target...);
  }
  /// "none" where it is missing.
  std::u16string text() const {
    CComPtr<IXMLDOMNode> attribute;
    map()->getNamedItem(u"a", attribute.receive());
    if (!attribute) return u"none";
    tagVARIANT value;
    attribute->get_nodeValue(&value);
    return value.bstrVal;
  }
};

template <class... Value>
std::u16string saved(Value const&... value) {
  Fixture fixture;
  EXPECT_EQ(fixture.add(value...), S_OK);
  return fixture.text();
}

/// What a text makes of a value that was `before`.
template <class T>
T loaded(std::u16string const& text, T before = {}) {
  Fixture fixture;
  fixture.add(tagVARIANT(text));
  EXPECT_EQ(fixture.get(before), S_OK);
  return before;
}

template <class T>
void expect_round_trip(T const& value, std::u16string const& text) {
  EXPECT_EQ(saved(value), text);
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
  EXPECT_EQ(saved("eng"), u"eng");
  EXPECT_EQ(saved(tagVARIANT()), u"");
  EXPECT_EQ(saved(tagVARIANT(-5)), u"-5");
  EXPECT_TRUE(std::isnan(loaded<double>(saved(std::nan("")))));

  unsigned char buffer[16], back[16] = {};
  for (int i = 0; i < 16; ++i) buffer[i] = static_cast<unsigned char>(i * 17);
  std::u16string const digits = saved(buffer, 16);
  EXPECT_EQ(digits, u"00112233445566778899aabbccddeeff");
  EXPECT_EQ(saved(buffer, -1), u"");
  Fixture fixture;
  fixture.add(tagVARIANT(digits));
  EXPECT_EQ(fixture.get(back, 15), S_OK);
  EXPECT_EQ(back[15], 0);
  EXPECT_EQ(fixture.get(back, 16), S_OK);
  EXPECT_TRUE(std::equal(back, back + 16, buffer));
}

TEST(Attributes, EveryByteComesBack) {
  std::string bytes;
  std::u16string wide;
  for (int b = 1; b <= 0xFF; ++b) {
    bytes += static_cast<char>(b);
    wide += static_cast<char16_t>(b);
  }
  expect_round_trip(bytes, wide);
  EXPECT_EQ(saved(bytes.c_str()), wide);
  EXPECT_EQ(saved(std::string("ab\0c", 4)), u"ab");
}

TEST(Attributes, OtherCodePointsAreThoseOfWindows1252OrAQuestionMark) {
  EXPECT_EQ(loaded<std::string>(u"\u20AC\u0178\u0081\u0160"), "\x80\x9F\x81\x8A");
  EXPECT_EQ(loaded<std::string>(u"\u0100\U0001F600\uFFFD."), "???.");
  char16_t const halves[] = {0xD83D, u'x', 0xDE00, 0xD83D, 0};
  EXPECT_EQ(loaded<std::string>(halves), "?x??");
}

TEST(Attributes, NumbersAreReadAsFarAsTheyGo) {
  struct Row {
    char16_t const* text;
    int number;
    unsigned long unsigned_number;
    unsigned char byte;
  };
  Row const rows[] = {
      {u"", 0, 0, 0},
      {u"abc", 0, 0, 0},
      {u"0x10", 0, 0, 0},
      {u" \t\r\n\v\f+7", 7, 7, 7},
      {u"+-7", 0, 0, 0},
      {u"--7", 0, 0, 0},
      {u"- 7", 0, 0, 0},
      {u"12 34", 12, 12, 12},
      {u"12,5", 12, 12, 12},
      {u"007\u0661", 7, 7, 7},
      {u"257", 257, 257, 1},
      {u"-1", -1, 4294967295, 255},
      {u"4294967295", -1, 4294967295, 255},
      {u"4294967298", 2, 2, 2},
      {u"99999999999999999999", -1, 4294967295, 255},
      {u"-99999999999999999999", 0, 0, 0},
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(::testing::PrintToString(std::u16string(row.text)));
    EXPECT_EQ(loaded<int>(row.text), row.number);
    EXPECT_EQ(loaded<unsigned long>(row.text), row.unsigned_number);
    EXPECT_EQ(loaded<unsigned int>(row.text), row.unsigned_number);
    EXPECT_EQ(loaded<unsigned char>(row.text), row.byte);
  }
  for (char16_t const* const text : {u"2", u"true", u"-1", u"", u"10"}) EXPECT_FALSE(loaded(text, true));
  for (char16_t const* const text : {u"1", u" +01x"}) EXPECT_TRUE(loaded<bool>(text));
}

TEST(Attributes, DoublesOfAnyText) {
  double const infinity = std::numeric_limits<double>::infinity();
  std::u16string const zeros(400, u'0');
  std::pair<std::u16string, double> const rows[] = {
      {u"", 0},
      {u"e5", 0},
      {u" +1.5e2x", 150},
      {u".5", 0.5},
      {u"1,5", 1},
      {u"1e", 1},
      {u"4.9e-324", 4.9e-324},
      {u"1e999", infinity},
      {u"-1e999", -infinity},
      {u"1e-999", 0},
      {u"0e999", 0},
      {u"1e99999999999999999999", infinity},
      {u"1e-99999999999999999999", 0},
      {u"1" + zeros, infinity},
      {u"." + zeros + u"1", 0},
      {u"." + zeros + u"1e999", infinity},
      {u"." + zeros + u"1e401", 1},
      {u"1" + zeros + u"e-999", 0},
      {u"-INF", -infinity},
      {u"infinity", infinity},
  };
  for (auto const& [text, value] : rows) {
    EXPECT_EQ(loaded<double>(text), value) << ::testing::PrintToString(text);
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
  text.append("old");
  EXPECT_EQ(loaded(u"new", text), "new");
}

TEST(Attributes, CharactersFillTheirRoomUpToAZero) {
  for (auto const& [text, room, expected] :
       std::vector<std::tuple<char16_t const*, int, std::string>>{{u"english", 4, std::string("eng\0#", 5)},
                                                                  {u"en", 4, std::string("en\0\0#", 5)},
                                                                  {u"", 2, std::string("\0\0###", 5)},
                                                                  {u"en", 1, std::string("\0####", 5)},
                                                                  {u"en", 0, "#####"},
                                                                  {u"en", -1, "#####"}}) {
    Fixture fixture;
    fixture.add(tagVARIANT(std::u16string(text)));
    char code[] = "#####";
    EXPECT_EQ(fixture.get(code, room), S_OK);
    EXPECT_EQ(std::string(code, 5), expected);
  }
}

/// A value that is no number text of its own goes through the text of its type.
TEST(Attributes, ADomMayGiveItsOwnTypes) {
  class Typed final : public IXMLDOMAttribute, public IXMLDOMNamedNodeMap {
   public:
    explicit Typed(tagVARIANT value) : value_(std::move(value)) {}
    long AddRef() override { return 2; }
    long Release() override { return 1; }
    long QueryInterface(InterfaceId, IXMLDOMElement**) override { return E_FAIL; }
    long appendChild(IXMLDOMNode*, IXMLDOMNode**) override { return E_FAIL; }
    long get_attributes(IXMLDOMNamedNodeMap**) override { return E_FAIL; }
    long get_childNodes(IXMLDOMNodeList**) override { return E_FAIL; }
    long get_nodeName(std::u16string*) override { return E_FAIL; }
    long put_nodeValue(tagVARIANT) override { return E_FAIL; }
    long selectSingleNode(char16_t const*, IXMLDOMNode**) override { return E_FAIL; }
    long get_nodeValue(tagVARIANT* value) override { return *value = value_, 1; }  // any success
    long getNamedItem(char16_t const*, IXMLDOMNode** node) override { return *node = this, S_OK; }

   private:
    tagVARIANT value_;
  };
  int number = 0;
  EXPECT_EQ(GetAttributeValue(std::make_unique<Typed>(tagVARIANT(-42)).get(), u"a", number), S_OK);
  EXPECT_EQ(number, -42);
  std::string text;
  EXPECT_EQ(GetAttributeValue(std::make_unique<Typed>(tagVARIANT(0.1)).get(), u"a", text), S_OK);
  EXPECT_EQ(text, "0.1");
  EXPECT_EQ(GetAttributeValue(std::make_unique<Typed>(tagVARIANT()).get(), u"a", text), S_OK);
  EXPECT_EQ(text, "");
}

TEST(AddAttribute, RefusedOperationsLeaveNoAttributeAndNoReference) {
  unsigned char const byte = 1;
  std::function<long(Fixture&)> const forms[] = {
      [](Fixture& f) { return f.add(1); },
      [](Fixture& f) { return f.add(1UL); },
      [](Fixture& f) { return f.add(1U); },
      [](Fixture& f) { return f.add(1.0); },
      [&](Fixture& f) { return f.add(byte); },
      [](Fixture& f) { return f.add(true); },
      [](Fixture& f) { return f.add(std::string("1")); },
      [](Fixture& f) { return f.add(Text()); },
      [](Fixture& f) { return f.add(Bytes{1}); },
      [](Fixture& f) { return f.add(Ints{1}); },
      [](Fixture& f) { return f.add(Ulongs{1}); },
      [](Fixture& f) { return f.add("1"); },
      [&](Fixture& f) { return f.add(&byte, 1); },
      [](Fixture& f) { return f.add(tagVARIANT(1)); },
  };
  for (auto const& add : forms) {
    for (auto const refusal : {MemoryDom::Refusal::result, MemoryDom::Refusal::no_object}) {
      Fixture fixture;
      // setAttributeNode, the third, gives no object anyway.
      int const refused = refusal == MemoryDom::Refusal::result ? 3 : 2;
      for (int n = 1; n <= refused; ++n) {
        fixture.dom.refuse(n, refusal);
        EXPECT_EQ(add(fixture), E_FAIL) << n;
        fixture.dom.refuse(0);
        EXPECT_EQ(fixture.text(), u"none");
        EXPECT_EQ(fixture.dom.objects(), 2);
      }
      EXPECT_EQ(add(fixture), S_OK);
      EXPECT_NE(fixture.text(), u"none");
      fixture.element = {};
      EXPECT_EQ(fixture.dom.objects(), 1);
    }
  }
}

TEST(AddAttribute, ReplacesByName) {
  Fixture fixture;
  fixture.add(1);
  fixture.add("two");
  EXPECT_EQ(fixture.text(), u"two");
  fixture.element = {};
  EXPECT_EQ(fixture.dom.objects(), 1);
}

/// Missing, refused at each operation, and at last read; `size` for arrays.
template <class T, class... Size>
void expect_untouched_by_failures(T& value, Size... size) {
  using Copy = std::conditional_t<std::is_pointer_v<T>, std::string, T>;
  auto const copy = [&] {
    if constexpr (std::is_pointer_v<T>) {
      return Copy(reinterpret_cast<char const*>(value), 4);
    } else {
      return Copy(value);
    }
  };
  Copy const before = copy();
  Fixture fixture;
  EXPECT_EQ(fixture.get(value, size...), E_FAIL);
  fixture.add(tagVARIANT(std::u16string(u"00000007")));
  auto const map = fixture.map();
  for (auto const refusal : {MemoryDom::Refusal::result, MemoryDom::Refusal::no_object}) {
    for (int n = 1; n <= 2; ++n) {
      fixture.dom.refuse(n, refusal);
      EXPECT_EQ(GetAttributeValue(map.get(), u"a", value, size...), E_FAIL);
      EXPECT_EQ(fixture.dom.operations(), n);
    }
  }
  EXPECT_EQ(GetAttributeValue(map.get(), u"A", value, size...), E_FAIL);
  EXPECT_EQ(copy(), before);
  EXPECT_EQ(fixture.dom.objects(), 4);  // the document, the element, its attribute and the map
  EXPECT_EQ(GetAttributeValue(map.get(), u"a", value, size...), S_OK);
  EXPECT_NE(copy(), before);
}

TEST(GetAttributeValue, FailuresLeaveTheValueAlone) {
  int number = 5;
  unsigned long ulong = 5;
  unsigned int uint = 5;
  unsigned char uchar = 5;
  bool flag = true;
  double real = 5;
  std::string string = "5";
  Text text;
  text.append("5");
  Bytes bytes{5};
  Ints ints{5};
  Ulongs ulongs{5};
  char characters[] = "5..";
  unsigned char buffer[] = {5, 5, 5, 5};
  char* const characters_at = characters;
  unsigned char* const buffer_at = buffer;
  expect_untouched_by_failures(number);
  expect_untouched_by_failures(ulong);
  expect_untouched_by_failures(uint);
  expect_untouched_by_failures(uchar);
  expect_untouched_by_failures(flag);
  expect_untouched_by_failures(real);
  expect_untouched_by_failures(string);
  expect_untouched_by_failures(text);
  expect_untouched_by_failures(bytes);
  expect_untouched_by_failures(ints);
  expect_untouched_by_failures(ulongs);
  expect_untouched_by_failures(characters_at, 4);
  expect_untouched_by_failures(buffer_at, 4);
}

/// Writes numbers as "1.234,5" while it lives, in C where such a locale is installed and in C++ anyway.
class CommaLocale {
 public:
  CommaLocale() : cpp_(std::locale::global(std::locale(std::locale::classic(), new Punctuation))) {
    for (char const* const name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) break;
    }
  }
  CommaLocale(CommaLocale const&) = delete;
  CommaLocale& operator=(CommaLocale const&) = delete;
  ~CommaLocale() {
    std::setlocale(LC_ALL, "C");
    std::locale::global(cpp_);
  }

 private:
  struct Punctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  std::locale cpp_;
};

TEST(Attributes, KnowNoLocale) {
  CommaLocale const locale;
  RecordProperty("decimal_point_of_C", std::localeconv()->decimal_point);
  expect_round_trip(1234567.5, u"1234567.5");
  expect_round_trip(1234567, u"1234567");
  EXPECT_EQ(loaded<double>(u"1,5"), 1);
}

}  // namespace
}  // namespace sivane::testing
