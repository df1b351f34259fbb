// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What docs/xml-format.md shows and lists is what the library saves.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <sstream>

#include "case_file.h"
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

/// An element of a tree of the case files, without its indent: its name, and the attributes' and children's
/// names.
struct Element {
  std::string name, attributes, children;
};

std::vector<std::pair<std::size_t, Element>> elements_of(std::string const& tree) {
  std::vector<std::pair<std::size_t, Element>> elements;
  std::istringstream lines(tree);
  for (std::string line; std::getline(lines, line);) {
    std::size_t const indent = line.find_first_not_of(' ');
    std::string const name = line.substr(indent, line.find(' ', indent) - indent);
    Element element{name, "", ""};
    for (std::size_t end = 0; (end = line.find("=\"", end)) != std::string::npos; ++end) {
      std::size_t const start = line.rfind(' ', end) + 1;
      element.attributes += line.substr(start, end - start) + ' ';
    }
    elements.emplace_back(indent, element);
  }
  return elements;
}

/// The rows that the page must have for the records of a descriptor's document: element, list, attributes and
/// children.
std::set<std::string> records_of(std::string const& tree) {
  std::set<std::string> rows;
  std::map<std::size_t, Element> open;
  auto const close = [&](std::size_t indent) {
    while (!open.empty() && open.rbegin()->first >= indent) {
      auto const [its_indent, element] = *open.rbegin();
      open.erase(its_indent);
      if (its_indent < 2 || element.attributes.empty()) continue;
      Element const& parent = open.rbegin()->second;
      std::string const list = parent.attributes.empty() && its_indent > 2 ? parent.name + ' ' : "";
      rows.insert(element.name + " | " + list + "| " + element.attributes + "| " + element.children);
    }
  };
  for (auto const& [indent, element] : elements_of(tree)) {
    close(indent);
    bool const is_item = !open.empty() && open.rbegin()->second.attributes.empty() && indent > 2;
    if (!open.empty() && !is_item) open.rbegin()->second.children += element.name + ' ';
    open[indent] = element;
  }
  close(0);
  return rows;
}

std::set<std::string> listed_records() {
  std::set<std::string> rows;
  std::istringstream lines(paragraph("| element | in | attributes | children |"));
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("| `", 0) != 0) continue;
    std::istringstream cells(line.substr(2));
    std::string cell, row;
    for (int i = 0; i < 4 && std::getline(cells, cell, '|'); ++i) {
      if (i == 1) cell.resize(cell.rfind('`', cell.find(" in ")) + 1);  // the list, without what it is in
      row += (i > 0 ? "| " : "") + names_in(cell);
    }
    rows.insert(row);
  }
  return rows;
}

TEST(XmlFormatPage, ListsWhatEveryRecordHas) {
  std::set<std::string> saved;
  for (auto const& entry : std::filesystem::directory_iterator(SIVANE_TESTS "/descriptors/cases")) {
    for (Step const& step : read_steps("descriptors/cases/" + entry.path().filename().string())) {
      if (step.lines.contains("xml")) saved.merge(records_of(step.lines.at("xml")));
    }
  }
  std::set<std::string> const listed = listed_records();
  for (std::string const& row : saved) EXPECT_TRUE(listed.contains(row)) << "lacks: " << row;
  for (std::string const& row : listed) EXPECT_TRUE(saved.contains(row)) << "nothing saves: " << row;
}

TEST(XmlFormatPage, ListsWhatEveryTableHas) {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) expect_table_is_listed<sivane::Class>(#Class);
#include <sivane/tables/table_rows.inc>
}

}  // namespace
