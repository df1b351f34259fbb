// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/document.h>
#include <sivane/dom/nodes.h>
#include <sivane/dom/refusal.h>
#include <sivane/dom/tree_builder.h>
#include <sivane/dom/writer.h>

#include <array>
#include <cstdio>

namespace sivane::dom {

namespace {

// Files without a buffer: streams keep to themselves that there was no memory for theirs.

struct Close {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

[[noreturn]] void fail() { throw error(system_reason().c_str()); }

File opened(std::string const& path, char const* mode) {
  errno = 0;
  File file(std::fopen(path.c_str(), mode));
  if (!file) fail();
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

/// Stops behind the first byte too many.
std::string content_of(std::string const& path) {
  File const file = opened(path, "rb");
  std::string content;
  std::array<char, 1 << 16> piece;
  while (content.size() <= max_size && !std::feof(file.get())) {
    content.append(piece.data(), std::fread(piece.data(), 1, piece.size(), file.get()));
    if (std::ferror(file.get())) fail();
  }
  return content;
}

void put_into(std::string const& path, std::string const& text) {
  File file = opened(path, "wb");
  bool const whole = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
  if (!whole || std::fclose(file.release()) != 0) fail();
}

/// Documents are made here alone.
DocumentNode& node_of(CComPtr<IXMLDOMDocument> const& document) {
  return *static_cast<DocumentNode*>(document.get());
}

void read_checked(std::string_view text, DocumentNode& document) {
  if (text.size() > max_size) throw error(too_large().c_str());
  read(text, document);
}

}  // namespace

Document::Document() : dom_(new_tree()) {}
Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;
Document::~Document() = default;

Document Document::load_file(std::string const& path) {
  return explained("load " + path, [&] {
    Document document;
    read_checked(content_of(path), node_of(document.dom_));
    return document;
  });
}

Document Document::load_string(std::string_view text) {
  return explained("load the document", [&] {
    Document document;
    read_checked(text, node_of(document.dom_));
    return document;
  });
}

void Document::save_file(std::string const& path) const {
  explained("save " + path, [&] { put_into(path, write(node_of(dom_))); });
}

std::string Document::save_string() const {
  return explained("save the document", [&] { return write(node_of(dom_)); });
}

CComPtr<IXMLDOMElement> Document::make_root(std::string const& name) {
  DocumentNode& document = node_of(dom_);
  if (document.root() != nullptr) throw error("the document has a root element already");
  check_name(name);
  return CComPtr<IXMLDOMElement>(&append_element(document.tree(), document, name));
}

CComPtr<IXMLDOMElement> Document::root_element() const {
  Element* const root = node_of(dom_).root();
  if (root == nullptr) throw error("the document has no root element");
  return CComPtr<IXMLDOMElement>(root);
}

CComPtr<IXMLDOMNode> Document::root_node() const { return root_element(); }

}  // namespace sivane::dom
