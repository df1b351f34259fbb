// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What docs/xml-format.md shows and lists is what the library saves.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <sstream>

#include "file_contents.h"
#include "memory_dom.h"
#include "section_builder.h"

namespace {

using namespace sivane::testing;

std::string page() { return contents(XML_FORMAT_PAGE); }

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

/// What is saved of a new object: its attributes behind `head`, and its children.
template <class Object>
std::string saved_names(std::string const& head = "descriptor_id descriptor_length ") {
  MemoryDom dom;
  auto const element = dom.element(u"it");
  Object().SaveSection(dom.document().get(), element.get());
  std::string names;
  while (attribute_count(element.get()) > 0) names += take_attribute(element.get(), 0) + ' ';
  names += "| ";
  for (std::size_t i = 0; i < child_count(element.get()); ++i) {
    names += name_of(child_at(element.get(), i).get()) + ' ';
  }
  EXPECT_EQ(names.substr(0, head.size()), head);
  return names.substr(head.size());
}

/// The names in backticks in a cell of the page; of a list the item's stands behind "of", which is left out.
std::string names_in(std::string const& cell) {
  std::string names;
  for (std::size_t at = cell.find('`'); at != std::string::npos;) {
    std::size_t const end = cell.find('`', at + 1);
    bool const is_item = at >= 3 && cell.compare(at - 3, 3, "of ") == 0;
    if (!is_item) names += cell.substr(at + 1, end - at - 1) + ' ';
    at = cell.find('`', end + 1);
  }
  return names;
}

/// What the page lists of a descriptor.
std::string listed_names(std::string const& element) {
  std::istringstream lines(page());
  std::string const cell = "| `" + element + "` | ";
  for (std::string line; std::getline(lines, line);) {
    std::size_t const at = line.find(cell);
    if (at == std::string::npos || line.compare(0, 4, "| 0x") != 0) continue;
    std::size_t const attributes = at + cell.size();
    std::size_t const children = line.find(" | ", attributes);
    return names_in(line.substr(attributes, children - attributes)) + "| " + names_in(line.substr(children));
  }
  return "no such row";
}

TEST(XmlFormatPage, ListsWhatEveryDescriptorHas) {
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) \
  EXPECT_EQ(listed_names(element), saved_names<sivane::Class>()) << element;
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) \
  EXPECT_EQ(listed_names(element), saved_names<sivane::Class>()) << element;
#include <sivane/descriptors/ait_descriptor_rows.inc>
}

/// The page from `start` to the next empty line.
std::string paragraph(std::string const& start) {
  std::string const text = page();
  std::size_t const at = text.find(start);
  return at == std::string::npos ? "no such lines" : text.substr(at, text.find("\n\n", at) - at);
}

/// Attributes and children in a row of the page's tables: name, attributes, list, entry, descriptors.
std::string listed_names_of_table(std::string const& name) {
  std::istringstream rows(paragraph("| table | attributes |"));
  std::string const cell = "| `" + name + "` | ";
  for (std::string row; std::getline(rows, row);) {
    if (row.rfind(cell, 0) != 0) continue;
    std::istringstream cells(row.substr(cell.size()));
    std::string attributes, list, entry, descriptors;
    for (std::string* const text : {&attributes, &list, &entry, &descriptors})
      std::getline(cells, *text, '|');
    return names_in(attributes) + "| " + names_in(list) + (descriptors == " yes " ? "descriptors " : "");
  }
  return "no such row";
}

template <class Table>
void expect_table_is_listed(std::string const& name) {
  bool const is_long = std::is_base_of_v<sivane::PsiTableBase, Table>;
  std::string header = paragraph(is_long ? "- long sections (" : "- short sections (");
  header.resize(header.find_first_of(";."));
  std::string const classes = header.substr(0, header.find("):"));
  EXPECT_NE(classes.find("`" + name + "`"), std::string::npos) << name << " in: " << classes;
  EXPECT_EQ(listed_names_of_table(name), saved_names<Table>(names_in(header.substr(classes.size())))) << name;
}

TEST(XmlFormatPage, ListsWhatEveryTableHas) {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) expect_table_is_listed<sivane::Class>(#Class);
#include <sivane/tables/table_rows.inc>
}

}  // namespace
