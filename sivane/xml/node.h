// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the steps through a document's tree that saving and loading are made of.
#pragma once

#include <sivane/xml/dom.h>

#include <string>
#include <string_view>

namespace sivane::xml {

/// A new element; null where it is refused.
CComPtr<IXMLDOMElement> create(IXMLDOMDocument* document, char16_t const* name);
/// Appends `child` and gives the appended node; null where `child` is null or it is refused.
CComPtr<IXMLDOMNode> append(IXMLDOMNode* parent, CComPtr<IXMLDOMElement> const& child);
/// The element view of a node; null where `node` is null or it is refused.
CComPtr<IXMLDOMElement> element_view(CComPtr<IXMLDOMNode> const& node);

/// The first child element of that name. Throws `error(failure)` where there is none.
CComPtr<IXMLDOMNode> select(IXMLDOMNode* node, char16_t const* name, char const* failure);

/// The attributes of a node. Throws `error(failure)` where it gives none.
CComPtr<IXMLDOMNamedNodeMap> attributes(IXMLDOMNode* node, char const* failure);

/// A node's name. Throws `error(failure)` where it gives none.
std::u16string node_name(IXMLDOMNode* node, char const* failure);

/// A name of the documents, which are all ASCII, for a message.
std::string narrow_name(std::u16string_view name);

/// The children of a node, counted once.
class Children {
 public:
  /// What is thrown where the children, their number or one of them cannot be had.
  struct Failures {
    std::string list, length, item;
  };

  Children(IXMLDOMNode* node, Failures failures);
  long count() const { return count_; }
  CComPtr<IXMLDOMNode> at(long index) const;

 private:
  Failures failures_;
  CComPtr<IXMLDOMNodeList> list_;
  long count_ = 0;
};

}  // namespace sivane::xml
