// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Documents written and read one element at a time: the same as whole ones, and refused for the same reasons.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/dom/element_reader.h>
#include <sivane/dom/element_writer.h>
#include <sivane/xml/attributes.h>

#include <fstream>
#include <sstream>

#include "expect_error.h"

namespace sivane::testing {
namespace {

void fill(IXMLDOMDocument* document, IXMLDOMElement* element, int number) {
  AddAttribute(document, element, u"n", number);
  CComPtr<IXMLDOMElement> child;
  document->createElement(u"child", child.receive());
  if (number > 0) element->appendChild(child.get(), nullptr);
}

TEST(Elements, AreWrittenAsInAWholeDocument) {
  for (int const count : {0, 1, 3}) {
    std::ostringstream out;
    dom::ElementWriter writer(out, "root");
    dom::Document document;
    auto const root = document.make_root("root");
    for (int number = 0; number < count; ++number) {
      EXPECT_THROW(writer.write("left_out", [](auto...) { throw 1; }), int);
      writer.write("a", [&](auto* maker, auto* element) { fill(maker, element, number); });
      CComPtr<IXMLDOMElement> element;
      document.dom()->createElement(u"a", element.receive());
      fill(document.dom(), element.get(), number);
      root->appendChild(element.get(), nullptr);
    }
    writer.finish();
    EXPECT_EQ(out.str(), document.save_string());
  }
}

TEST(Elements, ThatCouldNotBeReadAreNotWritten) {
  std::ofstream full("/dev/full");
  dom::ElementWriter writer(full, "root");
  auto const nothing = [](auto...) {};
  auto const nest = [](IXMLDOMDocument* document, IXMLDOMElement* element) {
    CComPtr<IXMLDOMNode> at(element);
    for (int level = 2; level <= 64; ++level) {
      CComPtr<IXMLDOMElement> child;
      document->createElement(u"a", child.receive());
      at->appendChild(child.get(), nullptr);
      at = child;
    }
  };
  auto const enlarge = [](IXMLDOMDocument* document, IXMLDOMElement* element) {
    AddAttribute(document, element, u"a", std::string(64 << 20, 'x'));
  };
  EXPECT_TRUE(throws([&] { dom::ElementWriter(full, "1"); }, "no name for an element: \"1\""));
  EXPECT_TRUE(throws([&] { writer.write("1", nothing); }, "no name for an element: \"1\""));
  EXPECT_TRUE(throws([&] { writer.write("a", nest); }, "cannot write the document: more than 64 levels"));
  EXPECT_TRUE(throws([&] { writer.write("a", enlarge); }, "cannot write the document: more than 64 MiB"));
  EXPECT_TRUE(full.good());
  EXPECT_TRUE(
      throws([&] { writer.write("a", nothing); }, "cannot write the document: No space left on device"));
}

/// How many elements of these texts, one after the other, are given before the reason why no more are.
std::string outcome(std::vector<std::string> const& pieces) {
  std::stringstream in;
  for (std::string const& piece : pieces) in << piece;
  int given = 0;
  try {
    dom::ElementReader reader(in);
    while (reader.next()) ++given;
  } catch (error const& failure) {
    return std::to_string(given) + ", " + failure.what();
  }
  return std::to_string(given) + " of " + (in.eof() ? "all" : "some");
}

std::string large(std::size_t size, std::string start = "<a b='", std::string const& end = "'/>") {
  start.append(size - start.size() - end.size(), 'x');
  return start + end;
}

TEST(Elements, AreReadUntilOneIsRefused) {
  std::size_t const mib = 1 << 20;
  std::string const failed = "cannot load the document: line ";
  std::pair<std::string, std::vector<std::string>> const rows[] = {
      {"0 of all", {"<r/>"}},
      {"2 of all",
       {"<?xml version='1.0'?><!--c--><r x='1'> t<?i d?><!--c--><a>t<b/></a>\n<a/></r> <!--c-->"}},
      {"2 of all", {"<r><a/>", large(64 * mib), "</r>"}},
      {"1, " + failed + "1: more than 64 MiB", {"<r><a/>", large(64 * mib + 1), "</r>"}},
      {"1, " + failed + "1: more than 64 MiB", {"<r><a/>", std::string(64 * mib, ' '), "<a/></r>"}},
      {"1, " + failed + "1: too many names", {"<r><a/>", large(mib + 3, "<b", "/>"), "<a/></r>"}},
      {"1, " + failed + "1: too many names", {"<r><a/>", large(mib + 8, "<a b", "='1'/>"), "<a/></r>"}},
      {"0, " + failed + "1: no element found", {""}},
      {"0, " + failed + "2: a DOCTYPE is not accepted", {"\n<!DOCTYPE r><r/>"}},
      {"1, " + failed + "2: mismatched tag", {"<r><a/>\n<b></a></r>"}},
      {"1, " + failed + "1: unclosed element", {"<r><a/>"}},
      {"1, " + failed + "1: junk after document element", {"<r><a/></r><r/>"}},
  };
  for (auto const& [expected, pieces] : rows) {
    EXPECT_EQ(outcome(pieces), expected) << pieces.front().substr(0, 80);
  }
  std::string start = "<r>", end = "</r>";
  for (int level = 2; level <= 64; ++level) start += "<a>", end = "</a>" + end;
  EXPECT_EQ(outcome({start, end}), "1 of all");
  EXPECT_EQ(outcome({start, "<a/>", end}), "0, " + failed + "1: more than 64 levels");
  std::ifstream folder(::testing::TempDir());
  EXPECT_TRUE(throws([&] { dom::ElementReader{folder}; }, "cannot load the document: Is a directory"));
}

/// Many, so that some cross the pieces in which the stream is read.
TEST(Elements, ComeBackWholeAndOutliveTheReader) {
  std::stringstream stream;
  dom::ElementWriter writer(stream, "root");
  constexpr int count = 20000;
  for (int i = 0; i < count; ++i) writer.write("a", [&](auto* maker, auto* a) { fill(maker, a, i); });
  writer.finish();
  CComPtr<IXMLDOMNode> last;
  int number = 0;
  {
    dom::ElementReader reader(stream);
    EXPECT_EQ(reader.root_name(), "root");
    while (auto node = reader.next()) {
      int read = -1;
      CComPtr<IXMLDOMNamedNodeMap> map;
      node->get_attributes(map.receive());
      GetAttributeValue(map.get(), u"n", read);
      EXPECT_EQ(read, number++);
      last = std::move(node);
    }
  }
  CComPtr<IXMLDOMNode> child;
  EXPECT_EQ(number, count);
  EXPECT_EQ(last->selectSingleNode(u"child", child.receive()), S_OK);
}

}  // namespace
}  // namespace sivane::testing
