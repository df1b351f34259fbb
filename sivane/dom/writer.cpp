// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/refusal.h>
#include <sivane/dom/writer.h>

namespace sivane::dom {

namespace {

class StringWriter final : public pugi::xml_writer {
 public:
  explicit StringWriter(std::string& text) : text_(text) {}
  void write(void const* data, std::size_t size) override {
    text_.append(static_cast<char const*>(data), size);
  }

 private:
  std::string& text_;
};

void append(std::string& text, pugi::xml_node node, int levels_above) {
  StringWriter writer(text);
  node.print(writer, "  ", pugi::format_indent, pugi::encoding_utf8, static_cast<unsigned int>(levels_above));
}

pugi::xml_node checked_root(Tree const& tree, int levels_above) {
  pugi::xml_node const root = tree.root();
  if (!root) throw error("there is no root element");
  if (tree.may_be_deep && is_too_deep(root, levels_above)) throw error(too_many_levels().c_str());
  return root;
}

}  // namespace

/// Without recursion, since a tree that was built may have any depth.
bool is_too_deep(pugi::xml_node root, int levels_above) {
  int level = levels_above + 1;
  for (pugi::xml_node node = root; node;) {
    if (level > max_levels && node.type() == pugi::node_element) return true;
    if (pugi::xml_node const child = node.first_child()) {
      node = child;
      ++level;
      continue;
    }
    while (node != root && !node.next_sibling()) {
      node = node.parent();
      --level;
    }
    node = node == root ? pugi::xml_node() : node.next_sibling();
  }
  return false;
}

std::string write(Tree const& tree) {
  checked_root(tree, 0);
  std::string text = declaration;
  for (pugi::xml_node const node : tree.document) append(text, node, 0);
  return text;
}

void append_root(std::string& text, Tree const& tree, int levels_above) {
  append(text, checked_root(tree, levels_above), levels_above);
}

}  // namespace sivane::dom
