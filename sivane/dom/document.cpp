// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/document.h>
#include <sivane/dom/nodes.h>
#include <sivane/dom/refusal.h>
#include <sivane/dom/tree_builder.h>
#include <sivane/dom/writer.h>

#include <array>
#include <fstream>

namespace sivane::dom {

namespace {

/// Stops behind the first byte too many.
std::string content_of(std::string const& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw error(system_reason().c_str());
  std::string content;
  std::array<char, 1 << 16> piece;
  while (content.size() <= max_size && (file.read(piece.data(), piece.size()) || file.gcount() > 0)) {
    content.append(piece.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad()) throw error(system_reason().c_str());
  return content;
}

void read_checked(std::string_view text, Tree& tree) {
  if (text.size() > max_size) throw error(too_large().c_str());
  read(text, tree);
}

}  // namespace

Document::Document() : tree_(std::make_shared<Tree>()), dom_(document_node(tree_)) {}
Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;
Document::~Document() = default;

Document Document::load_file(std::string const& path) {
  return explained("load " + path, [&] {
    Document document;
    read_checked(content_of(path), *document.tree_);
    return document;
  });
}

Document Document::load_string(std::string_view text) {
  return explained("load the document", [&] {
    Document document;
    read_checked(text, *document.tree_);
    return document;
  });
}

void Document::save_file(std::string const& path) const {
  explained("save " + path, [&] {
    std::string const text = write(*tree_);
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file) throw error(system_reason().c_str());
  });
}

std::string Document::save_string() const {
  return explained("save the document", [&] { return write(*tree_); });
}

CComPtr<IXMLDOMElement> Document::make_root(std::string const& name) {
  if (tree_->root()) throw error("the document has a root element already");
  check_name(name);
  return element_node(tree_, append_element(tree_->document, name.c_str()));
}

CComPtr<IXMLDOMElement> Document::root_element() const {
  pugi::xml_node const root = tree_->root();
  if (!root) throw error("the document has no root element");
  return element_node(tree_, root);
}

CComPtr<IXMLDOMNode> Document::root_node() const { return root_element(); }

}  // namespace sivane::dom
