// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What docs/dumps.md and docs/xml-format.md show and list is what the library dumps and saves.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <set>
#include <sstream>

#include "descriptor_cases.h"
#include "file_contents.h"
#include "memory_dom.h"
#include "section_builder.h"

namespace sivane::testing {
namespace {

std::string xml_page() { return contents(SIVANE_PAGES "/xml-format.md"); }

void expect_shown(std::string const& page, std::string const& language, std::string const& text) {
  EXPECT_NE(page.find("```" + language + '\n' + text + "```\n"), std::string::npos) << text;
}

template <class Object>
void expect_dump_is_shown(Object const& object) {
  std::ostringstream os;
  object.dump_state(os);
  expect_shown(contents(SIVANE_PAGES "/dumps.md"), "", os.str());
}

TEST(Pages, ShowWhatTheLibraryWrites) {
  Pat pat;
  pat.Parse(make_pat({{0, 0x10}, {1, 0x100}}, {.context_id = 0x22, .version_number = 3}).data());
  expect_dump_is_shown(pat);
  expect_dump_is_shown(DescriptorCa(hex("09 06 0500 E1F5 54 01").data()));
  int size = 99;
  Bytes const entry = assemble("0001 FF 8( 48[ 01 [ \"Harbour Media\" ] [ \"Harbour One\" ] ] 53[ 0500 ] )");
  expect_dump_is_shown(Sdt::Service_info(entry.data(), size));

  dom::Document document;
  auto const root = document.make_root("sections");
  CComPtr<IXMLDOMElement> element;
  document.dom()->createElement(u"Pat", element.receive());
  ASSERT_TRUE(pat.SaveSection(document.dom(), element.get()));
  root->appendChild(element.get(), nullptr);
  expect_shown(xml_page(), "xml", document.save_string());
}

/// The names in backticks in a cell of the page, but for the item of a list and what a list is in.
std::string names_in(std::string const& cell) {
  if (cell == " yes ") return "descriptors ";
  std::string names;
  for (std::size_t at = cell.find('`'); at != std::string::npos;) {
    std::size_t const end = cell.find('`', at + 1);
    std::string const before = cell.substr(at < 3 ? 0 : at - 3, 3);
    if (before != "of " && before != "in ") names += cell.substr(at + 1, end - at - 1) + ' ';
    at = cell.find('`', end + 1);
  }
  return names;
}

/// The names in the cells of the page's tables of so many columns.
std::vector<std::vector<std::string>> listed_rows(std::size_t columns) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(xml_page());
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("| ", 0) != 0) continue;
    std::istringstream cells(line.substr(1));
    std::vector<std::string> row;
    for (std::string cell; std::getline(cells, cell, '|');) row.push_back(names_in(cell));
    if (row.size() == columns) rows.push_back(row);
  }
  return rows;
}

std::string attributes_of(IXMLDOMNode* element) {
  std::string names;
  while (attribute_count(element) > 0) names += take_attribute(element, 0) + ' ';
  return names;
}

std::string children_of(IXMLDOMNode* element) {
  std::string names;
  for (std::size_t i = 0; i < child_count(element); ++i) names += name_of(child_at(element, i).get()) + ' ';
  return names;
}

using Rows = std::set<std::vector<std::string>>;

/// The rows that the page must have for an element and the records below it.
void collect(IXMLDOMNode* element, std::string const& list, Rows& rows) {
  rows.insert({name_of(element) + ' ', list, attributes_of(element), children_of(element)});
  for (std::size_t i = 0; i < child_count(element); ++i) {
    auto const child = child_at(element, i);
    bool const is_list = attribute_count(child.get()) == 0;
    if (!is_list) collect(child.get(), "", rows);
    for (std::size_t item = 0; is_list && item < child_count(child.get()); ++item)
      collect(child_at(child.get(), item).get(), name_of(child.get()) + ' ', rows);
  }
}

TEST(XmlFormatPage, ListsWhatEveryDescriptorAndItsRecordsHave) {
  Rows saved, listed;
  each_descriptor_of_cases([&saved](auto const& row, auto const& descriptor) {
    MemoryDom dom;
    auto const element = dom.element(row.element);
    descriptor.SaveSection(dom.document().get(), element.get());
    EXPECT_EQ(take_attribute(element.get(), 0), "descriptor_id");
    EXPECT_EQ(take_attribute(element.get(), 0), "descriptor_length");
    collect(element.get(), "", saved);
  });
  for (auto row : listed_rows(4)) {
    if (row[0].empty()) std::swap(row[0], row[1]);  // a tag is in front of a descriptor's name
    if (!row[0].empty()) listed.insert(row);        // and a title has none
  }
  for (auto const& row : saved) EXPECT_TRUE(listed.contains(row)) << ::testing::PrintToString(row);
  for (auto const& row : listed) EXPECT_TRUE(saved.contains(row)) << ::testing::PrintToString(row);
}

template <class Table>
void expect_table_is_listed(std::string const& name) {
  MemoryDom dom;
  auto const element = dom.element(u"it");
  Table().SaveSection(dom.document().get(), element.get());
  std::string header = xml_page();
  header.erase(0, header.find(std::is_base_of_v<PsiTableBase, Table> ? "- long sec" : "- short sec"));
  header.resize(header.find_first_of(";."));
  std::size_t const classes = header.find("):");
  EXPECT_LT(header.find('`' + name + '`'), classes) << name << " in: " << header;
  header = names_in(header.substr(classes));

  int listed = 0;
  std::string const attributes = attributes_of(element.get());
  for (auto const& row : listed_rows(5)) {
    if (row[0] != name + ' ') continue;
    EXPECT_EQ(attributes, header + row[1]);
    EXPECT_EQ(children_of(element.get()), row[2] + row[4]);
    ++listed;
  }
  EXPECT_EQ(listed, 1) << name;
}

TEST(XmlFormatPage, ListsWhatEveryTableHas) {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) expect_table_is_listed<Class>(#Class);
#include <sivane/tables/table_rows.inc>
}

}  // namespace
}  // namespace sivane::testing
