// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/fields/field_visitor.h>
#include <sivane/xml/dom.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace sivane::testing {

/// What a visit tells, in the form of documents.
struct Element {
  std::string name;  // empty for the items of a list, whose elements have names of their own
  std::vector<std::pair<std::string, std::string>> attributes;
  std::vector<std::unique_ptr<Element>> children;
};

/// Collects a visit as a tree.
class VisitedTree final : public FieldVisitor {
 public:
  VisitedTree() : open_{&root} {}

  void number(Field const& field, std::int64_t value) override;
  void real(Field const& field, double value) override;
  void flag(Field const& field, bool value) override { add(field, value ? "1" : "0"); }
  void text(Field const& field, std::string_view value) override;
  void string(Field const& field, std::string_view value) override;
  void code(Field const& field, std::string_view letters) override { string(field, letters); }
  void bytes(Field const& field, unsigned char const* data, std::size_t size) override;
  void date(Field const& field, DateTime const& value) override;
  void duration(Field const& field, Duration const& value) override;
  void begin_list(Field const& field, std::size_t) override { begin(field); }
  void end_list() override { open_.pop_back(); }
  void begin_record(Field const& field) override { begin(field); }
  void end_record() override { open_.pop_back(); }
  void begin_descriptor(std::string_view element, DescriptorBase const&) override {
    begin({element, element});
  }
  void end_descriptor() override { open_.pop_back(); }

  Element root;
  std::set<std::string> unsaved;  // the members that documents do not carry

 private:
  void add(Field const& field, std::string const& value);
  void begin(Field const& field);

  std::vector<Element*> open_;
  Element left_out_;
};

/// Expects the element of a document to hold the same, in the same order.
void expect_same(Element const& visited, IXMLDOMNode* node);

}  // namespace sivane::testing
