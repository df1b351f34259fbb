// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/xml/dom.h>

#include <functional>
#include <iosfwd>
#include <string>

namespace sivane::dom {

/// Writes a document of any length, one child element of its root at a time, in the memory of one. The text
/// is that of a `Document` with the same elements.
///
///     std::ofstream file("pats.xml", std::ios::binary);
///     sivane::dom::ElementWriter writer(file, "sections");
///     writer.write("Pat", [&](auto* document, auto* element) { pat.SaveSection(document, element); });
///     writer.finish();
class ElementWriter {
 public:
  /// Fills an element that is new and empty; what makes its nodes is valid during the call.
  using Fill = std::function<void(IXMLDOMDocument*, IXMLDOMElement*)>;

  /// The stream stays the host's and must outlive the writer. Throws `error` if `root` is no name.
  ElementWriter(std::ostream& out, std::string root);

  /// Writes the element that `fill` fills, and flushes the stream. Throws `error` if `name` is refused, where
  /// the element is deeper or larger than could be read, and where the stream fails: "cannot write the
  /// document: No space left on device". Where it or `fill` throws before the stream is written to, the
  /// element is left out and the next may follow.
  void write(std::string const& name, Fill const& fill);

  /// Writes the root's end. Without it the document is incomplete, and readers say so. Throws `error`.
  void finish();

 private:
  void put(std::string const& text);

  std::ostream& out_;
  std::string root_;
  bool is_empty_ = true;
};

}  // namespace sivane::dom
