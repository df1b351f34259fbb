// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "visited_tree.h"

#include <gtest/gtest.h>
#include <sivane/foundation/hex.h>
#include <sivane/foundation/time.h>

#include <algorithm>
#include <cctype>

#include "case_file.h"
#include "memory_dom.h"

namespace sivane::testing {

namespace {

/// As a document shows a string: up to its first zero.
std::string shown(std::string_view raw) { return printable(raw.substr(0, raw.find('\0'))); }

/// What documents hold as one attribute and a visit tells as several: numbers, or an application.
std::string in_one_attribute(Element const& element) {
  std::string text;
  for (auto const& [name, value] : element.attributes) {
    std::string digits;
    bin2str(std::vector<int>{std::stoi(value)}, digits);
    text += digits;
  }
  return text;
}

std::string without_blanks_in_lower_case(std::string text) {
  std::erase(text, ' ');
  for (char& c : text) c = static_cast<char>(std::tolower(c));
  return text;
}

/// The children of a visit that are no attributes in the document.
class Expected {
 public:
  Expected(Element const& visited, IXMLDOMNode* node) : visited_(visited), node_(node) {
    for (auto const& child : visited.children) children_.push_back(child.get());
  }

  void attributes() {
    auto next = visited_.attributes.begin();
    for (std::size_t i = 0; i < attribute_count(node_); ++i) {
      auto const stored = attribute_at(node_, i);
      if (take_as_attribute(stored.first, stored.second)) continue;
      ASSERT_NE(next, visited_.attributes.end()) << stored.first << " was not visited";
      expect_attribute(*next++, stored);
    }
    rest_.assign(next, visited_.attributes.end());
  }

  void children() {
    std::size_t at = 0;
    for (std::size_t i = 0; i < child_count(node_); ++i) {
      auto const child = child_at(node_, i);
      if (!rest_.empty() && rest_[0].first == name_of(child.get())) {
        expect_date(child.get());
        continue;
      }
      ASSERT_LT(at, children_.size()) << name_of(child.get()) << " was not visited";
      Element const& visited = *children_[at++];
      EXPECT_TRUE(visited.name.empty() || visited.name == name_of(child.get())) << visited.name;
      expect_same(visited, child.get());
    }
    EXPECT_EQ(at, children_.size());
    EXPECT_TRUE(rest_.empty()) << rest_[0].first << " is not in the document";
  }

 private:
  using Attribute = std::pair<std::string, std::string>;

  /// Documents do not have the selector of a `Text`, which is printed as three characters.
  static void expect_attribute(Attribute const& visited, Attribute const& stored) {
    bool const has_selector = visited.second.starts_with('\\') && visited.second.substr(3) == stored.second;
    EXPECT_EQ(visited.first, stored.first);
    EXPECT_TRUE(visited.second == stored.second || has_selector) << visited.first << ' ' << visited.second;
  }

  bool take_as_attribute(std::string const& name, std::string const& value) {
    auto const found = std::ranges::find(children_, name, [](Element const* child) { return child->name; });
    if (found == children_.end()) return false;
    std::string digits = in_one_attribute(**found);
    if (value.find(' ') != value.npos) digits.erase(8, 4);  // an application, whose second number has 16 bits
    EXPECT_EQ(digits, without_blanks_in_lower_case(value));
    children_.erase(found);
    return true;
  }

  /// A date that is an element.
  void expect_date(IXMLDOMNode* node) {
    std::string text;
    for (std::size_t i = 0; i < attribute_count(node); ++i)
      text += (i > 0 ? " " : "") + attribute_at(node, i).second;
    EXPECT_EQ(rest_[0].second, text);
    rest_.erase(rest_.begin());
  }

  Element const& visited_;
  IXMLDOMNode* node_;
  std::vector<Element const*> children_;
  std::vector<Attribute> rest_;  // what is left of the visit's attributes
};

}  // namespace

void VisitedTree::add(Field const& field, std::string const& value) {
  if (field.in_documents) open_.back()->attributes.emplace_back(field.name, value);
  if (!field.in_documents && !field.member.empty()) unsaved.emplace(field.member);
}

void VisitedTree::begin(Field const& field) {
  if (!field.in_documents && !field.member.empty()) unsaved.emplace(field.member);
  if (!field.in_documents) return open_.push_back(&left_out_);
  auto& children = open_.back()->children;
  children.push_back(std::make_unique<Element>());
  children.back()->name = field.name;
  open_.push_back(children.back().get());
}

void VisitedTree::number(Field const& field, std::int64_t value) {
  EXPECT_GT(field.bits, 0) << field.member;
  EXPECT_TRUE(field.bits >= 32 || value >> field.bits == 0) << field.member << ' ' << value;
  add(field, std::to_string(static_cast<std::int32_t>(value)));
}

void VisitedTree::real(Field const& field, double value) {
  std::string text;
  for (char16_t const unit : tagVARIANT(value).text()) text += static_cast<char>(unit);
  add(field, text);
}

void VisitedTree::text(Field const& field, std::string_view value) { add(field, shown(value)); }
void VisitedTree::string(Field const& field, std::string_view value) { add(field, shown(value)); }

void VisitedTree::bytes(Field const& field, unsigned char const* data, std::size_t size) {
  std::string digits;
  bin2str(data, digits, static_cast<int>(size));
  add(field, digits);
}

void VisitedTree::date(Field const& field, DateTime const& value) { add(field, value.get_date_as_text()); }

void VisitedTree::duration(Field const& field, Duration const& value) {
  add(field, value.get_time_as_text());
}

void expect_same(Element const& visited, IXMLDOMNode* node) {
  Expected expected(visited, node);
  expected.attributes();
  expected.children();
}

}  // namespace sivane::testing
