// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/error.h>
#include <sivane/xml/node.h>

#include <utility>

namespace sivane::xml {

CComPtr<IXMLDOMElement> create(IXMLDOMDocument* document, char16_t const* name) {
  CComPtr<IXMLDOMElement> element;
  if (document == nullptr || document->createElement(name, element.receive()) < 0) return {};
  return element;
}

CComPtr<IXMLDOMNode> append(IXMLDOMNode* parent, CComPtr<IXMLDOMElement> const& child) {
  CComPtr<IXMLDOMNode> added;
  if (!child || parent == nullptr || parent->appendChild(child.get(), added.receive()) < 0) return {};
  return added;
}

CComPtr<IXMLDOMElement> element_view(CComPtr<IXMLDOMNode> const& node) {
  CComPtr<IXMLDOMElement> element;
  if (!node || node->QueryInterface(IID_IXMLDOMElement, element.receive()) < 0) return {};
  return element;
}

CComPtr<IXMLDOMNode> select(IXMLDOMNode* node, char16_t const* name, char const* failure) {
  CComPtr<IXMLDOMNode> found;
  if (node == nullptr || node->selectSingleNode(name, found.receive()) < 0 || !found) throw error(failure);
  return found;
}

CComPtr<IXMLDOMNamedNodeMap> attributes(IXMLDOMNode* node, char const* failure) {
  CComPtr<IXMLDOMNamedNodeMap> map;
  if (node == nullptr || node->get_attributes(map.receive()) < 0 || !map) throw error(failure);
  return map;
}

std::u16string node_name(IXMLDOMNode* node, char const* failure) {
  std::u16string name;
  if (node->get_nodeName(&name) < 0) throw error(failure);
  return name;
}

std::string narrow_name(std::u16string_view name) {
  std::string narrow;
  for (char16_t const letter : name) narrow += static_cast<char>(letter);
  return narrow;
}

Children::Children(IXMLDOMNode* node, Failures failures) : failures_(std::move(failures)) {
  if (node->get_childNodes(list_.receive()) < 0 || !list_) throw error(failures_.list.c_str());
  if (list_->get_length(&count_) < 0) throw error(failures_.length.c_str());
}

CComPtr<IXMLDOMNode> Children::at(long index) const {
  CComPtr<IXMLDOMNode> child;
  if (list_->get_item(index, child.receive()) < 0 || !child) throw error(failures_.item.c_str());
  return child;
}

}  // namespace sivane::xml
