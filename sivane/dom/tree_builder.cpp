// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/tree_builder.h>

namespace sivane::dom {

/// The parser has seen to it that no attribute is given twice.
void TreeBuilder::start(char const* name, char const** attributes) {
  add_text();
  Element& element = append_element(tree_, *parent_, name);
  parent_ = &element;
  Attribute** end = &element.attributes;
  for (; *attributes != nullptr; attributes += 2) {
    auto* const attribute = tree_.arena.make<Attribute>(tree_, tree_.arena.keep(attributes[0]));
    attribute->value = tree_.arena.keep(attributes[1]);
    attribute->is_attached = true;
    *end = attribute;
    end = &attribute->next;
  }
}

void TreeBuilder::end() {
  add_text();
  parent_ = parent_->parent;
}

void TreeBuilder::instruction(char const* target, char const* data) { add(Kind::instruction, target, data); }

void TreeBuilder::add(Kind kind, std::string_view name, std::string_view value) {
  add_text();
  add_leaf(kind, name, value);
}

void TreeBuilder::add_leaf(Kind kind, std::string_view name, std::string_view value) {
  Arena& arena = tree_.arena;
  append(*parent_, *arena.make<Leaf>(tree_, kind, arena.keep(name), arena.keep(value)));
}

/// Text is complete where something else follows. Blanks alone only lay out the document.
void TreeBuilder::add_text() {
  if (text_.find_first_not_of(" \t\r\n") != std::string::npos) add_leaf(Kind::text, {}, text_);
  text_.clear();
}

void read(std::string_view text, DocumentNode& document) {
  TreeBuilder builder(document);
  Parser(builder).parse_all(text);
}

}  // namespace sivane::dom
