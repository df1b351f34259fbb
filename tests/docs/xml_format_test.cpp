// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What docs/xml-format.md shows and lists is what the library saves.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "memory_dom.h"
#include "section_builder.h"

namespace {

using namespace sivane::testing;

std::string page() {
  std::ifstream file(XML_FORMAT_PAGE);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(XmlFormatPage, ShowsWhatTheLibraryWrites) {
  sivane::Pat pat;
  pat.Parse(make_pat({{0, 0x10}, {1, 0x100}}, {.context_id = 0x22, .version_number = 3}).data());
  sivane::dom::Document document;
  auto const root = document.make_root("sections");
  sivane::CComPtr<sivane::IXMLDOMElement> element;
  document.dom()->createElement(u"Pat", element.receive());
  ASSERT_TRUE(pat.SaveSection(document.dom(), element.get()));
  root->appendChild(element.get(), nullptr);
  std::string const text = document.save_string();
  EXPECT_NE(page().find("```xml\n" + text + "```\n"), std::string::npos) << text;
}

/// The `words` of a text, each with a blank behind it.
std::string words(std::string const& text, char const* pattern) {
  const std::regex word(pattern);
  std::string found;
  for (std::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at)
    found += (*at)[1].str() + ' ';
  return found;
}

/// What is saved of a descriptor: its attributes behind the tag and the length, and its children.
template <class Descriptor>
std::string saved_names() {
  MemoryDom dom;
  auto const element = dom.element(u"it");
  Descriptor().SaveSection(dom.document().get(), element.get());
  std::istringstream lines(written(element.get()));
  std::string names, line;
  std::getline(lines, line);
  names = words(line, " (\\w+)=").substr(std::string("descriptor_id descriptor_length ").size()) + "| ";
  while (std::getline(lines, line)) {
    if (line.find_first_not_of(' ') == 2) names += words(line, "^  (\\w+)");
  }
  return names;
}

/// What the page lists of it; lists are named with their items, which an empty one does not have.
std::string listed_names(std::string const& element) {
  std::smatch row;
  const std::string text = page();
  const std::regex pattern("\n\\| 0x.. \\| `" + element + "` \\| (.*) \\| (.*) \\|\n");
  if (!std::regex_search(text, row, pattern)) return "no such row";
  return words(row[1], "`(\\w+)`") + "| " + words(row[2], "(?:list|child) `(\\w+)`");
}

TEST(XmlFormatPage, ListsWhatEveryDescriptorHas) {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  EXPECT_EQ(listed_names(element), saved_names<sivane::Class>()) << element;
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  EXPECT_EQ(listed_names(element), saved_names<sivane::Class>()) << element;
#include <sivane/descriptors/ait_descriptor_rows.inc>
}

}  // namespace
