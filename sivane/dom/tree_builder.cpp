// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/tree_builder.h>

namespace sivane::dom {

void TreeBuilder::start(char const* name, char const** attributes) {
  add_text();
  parent_ = append_element(parent_, name);
  for (; *attributes != nullptr; attributes += 2) append_attribute(parent_, attributes[0], attributes[1]);
}

void TreeBuilder::end() {
  add_text();
  parent_ = parent_.parent();
}

void TreeBuilder::instruction(char const* target, char const* data) {
  check_memory(add(pugi::node_pi, data).set_name(target));
}

pugi::xml_node TreeBuilder::add(pugi::xml_node_type type, char const* value) {
  add_text();
  pugi::xml_node node = not_null(parent_.append_child(type));
  check_memory(node.set_value(value));
  return node;
}

/// Text is complete where something else follows. Blanks alone only lay out the document.
void TreeBuilder::add_text() {
  if (text_.find_first_not_of(" \t\r\n") != std::string::npos) {
    check_memory(not_null(parent_.append_child(pugi::node_pcdata)).set_value(text_.c_str()));
  }
  text_.clear();
}

void read(std::string_view text, Tree& tree) {
  TreeBuilder builder(tree);
  Parser(builder).parse_all(text);
}

}  // namespace sivane::dom
