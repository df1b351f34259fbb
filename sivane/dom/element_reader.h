// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/xml/dom.h>

#include <iosfwd>
#include <memory>
#include <string>

namespace sivane::dom {

/// Reads a document of any length, one child element of its root at a time, in the memory of one.
///
///     std::ifstream file("pats.xml", std::ios::binary);
///     sivane::dom::ElementReader reader(file);
///     while (auto const node = reader.next()) {
///       sivane::Pat pat;
///       pat.Parse(node.get());
///     }
///
/// What `Document` refuses is refused here too, where the reading comes to it: what stood before was handed
/// out by then. The 64 MiB are those from the end of one element to the end of the next; all names together
/// that differ are at most 1 MiB. Texts, comments and attributes of the root itself are dropped.
class ElementReader {
 public:
  /// Reads up to the root's start tag. The stream stays the host's and must outlive the reader, which reads
  /// ahead. Throws `error`, as `next` does.
  explicit ElementReader(std::istream& in);
  /// The other may only be assigned to or destroyed.
  ElementReader(ElementReader&&) noexcept;
  /// As the constructor.
  ElementReader& operator=(ElementReader&&) noexcept;
  ~ElementReader();

  /// The next element, root of a small tree of its own that lasts as long as references to it; null at the
  /// end of the document. Throws `error`, with the line in its text: "cannot load the document: line 3:
  /// mismatched tag"; nothing can be read after that.
  CComPtr<IXMLDOMNode> next();

  /// The name of the root element, UTF-8.
  std::string const& root_name() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace sivane::dom
