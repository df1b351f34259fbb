// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// From the tree of a document to its text.
#include <sivane/dom/tree.h>
#include <sivane/foundation/error.h>

namespace sivane::dom {

namespace {

class StringWriter final : public pugi::xml_writer {
 public:
  void write(void const* data, std::size_t size) override {
    text.append(static_cast<char const*>(data), size);
  }

  std::string text;
};

/// Whether elements stand within each other deeper than the reader takes them. Without recursion, since a
/// tree that was built may have any depth.
bool is_too_deep(pugi::xml_node root) {
  int level = 1;
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

}  // namespace

std::string write(Tree const& tree) {
  pugi::xml_node const root = tree.root();
  if (!root) throw error("there is no root element");
  if (is_too_deep(root)) throw error(("more than " + std::to_string(max_levels) + " levels").c_str());
  StringWriter writer;
  writer.text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  for (pugi::xml_node const node : tree.document)
    node.print(writer, "  ", pugi::format_indent, pugi::encoding_utf8);
  return std::move(writer.text);
}

}  // namespace sivane::dom
