// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// sivane::dom, a library of its own beside sivane::sivane: the DOM for hosts that have none.
#pragma once

#include <sivane/xml/dom.h>

#include <string>
#include <string_view>

namespace sivane::dom {

/// An XML document that tables and descriptors save themselves to and load themselves from.
///
///     sivane::dom::Document document;
///     pat.SaveSection(document.dom(), document.make_root("pat").get());
///     document.save_file("pat.xml");
///
///     auto loaded = sivane::dom::Document::load_file("pat.xml");
///     pat.Parse(loaded.root_node().get());
///
/// What is saved opens in every reader of XML 1.0, whatever bytes its texts hold: the control bytes 0x01 to
/// 0x1F but tab, line feed and carriage return are written as the control pictures U+2401 to U+241F, which
/// read back as the bytes; other characters that XML forbids become U+FFFD. `createElement` and
/// `createAttribute` refuse names that are not of ASCII letters, digits and "_:-.".
///
/// Files need not be trusted: a document is at most 64 MiB long and 64 levels deep, and has no DOCTYPE, so
/// that no entity but the five of XML stands for anything. Text of blanks alone is dropped. The encodings are
/// UTF-8, UTF-16, ISO-8859-1 and US-ASCII; UTF-8 is written.
///
/// References to nodes stay valid when the document is gone; its memory is given back with the last of them,
/// that of nodes and values which are no longer in it too. A document and its nodes serve one thread at a
/// time.
class Document {
 public:
  /// Without a root element.
  Document();
  /// The other may only be assigned to or destroyed.
  Document(Document&&) noexcept;
  /// As the constructor.
  Document& operator=(Document&&) noexcept;
  ~Document();

  /// Throw `error`, with the file and the line in its text: "cannot load pat.xml: line 3: mismatched tag".
  static Document load_file(std::string const& path);
  /// As `load_file`, with "the document" in the text.
  static Document load_string(std::string_view text);

  /// Throw `error` where there is no root element, where there are more levels than could be loaded, or where
  /// the file cannot be written. A document that is refused leaves the file alone.
  void save_file(std::string const& path) const;
  /// As `save_file`.
  std::string save_string() const;

  /// What makes nodes. Valid as long as this object.
  IXMLDOMDocument* dom() const { return dom_.get(); }
  /// Gives an empty document its root element. Throws `error` where there is one, or if `name` is refused.
  CComPtr<IXMLDOMElement> make_root(std::string const& name);
  /// The root element in both of its views. They throw `error` where there is none.
  CComPtr<IXMLDOMElement> root_element() const;
  /// As `root_element`.
  CComPtr<IXMLDOMNode> root_node() const;

 private:
  CComPtr<IXMLDOMDocument> dom_;
};

}  // namespace sivane::dom
