// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/xml/dom.h>

#include <array>
#include <string>
#include <vector>

#include "input.h"

namespace sivane::fuzzing {

/// Arbitrary calls of the DOM on one element and on what they make. The same script on two documents does
/// the same to both.
class DomScript {
 public:
  /// The element itself is appended to nothing.
  DomScript(IXMLDOMDocument* document, IXMLDOMElement* element) : document_(document) {
    elements_.push_back(CComPtr<IXMLDOMElement>(element));
  }

  void run(Input script) {
    while (!script.empty()) step(script.byte(), script);
  }

 private:
  void step(unsigned int action, Input& script) {
    switch (action & 7) {
      case 0:
        return create(script);
      case 1:
        return append(some(elements_, script).get(), script.byte());
      case 2:
        return attach(script);
      case 3:
        return put_value(script);
      case 4:
        return look_at_children(script);
      case 5:
        return select(script);
      case 6:
        return nest(action >> 3, script);
      default:
        return forget(script.byte());
    }
  }

  /// Names that are refused among them.
  static char16_t const* name_of(unsigned int choice) {
    static constexpr std::array names = {u"a", u"b",   u"c:d",    u"_e.f-9", u"",
                                         u"9", u"g h", u"\u00E4", u"\xD800"};
    return names[choice % names.size()];
  }
  template <class Interface>
  static CComPtr<Interface> some(std::vector<CComPtr<Interface>> const& of, Input& script) {
    return of[script.byte() % of.size()];
  }
  static tagVARIANT value_of(Input& script) {
    unsigned int const kind = script.byte();
    if (kind % 3 == 0) return tagVARIANT(static_cast<std::int32_t>(kind << 24));
    if (kind % 3 == 1) return tagVARIANT(1.0 / kind);
    std::u16string text;
    for (unsigned char const byte : script.bytes(kind % 8)) {
      text.push_back(static_cast<char16_t>(byte < 0x80 ? byte : byte << 8));  // surrogates and U+FF00 too
    }
    return tagVARIANT(text);
  }

  void create(Input& script) {
    unsigned int const name = script.byte();
    CComPtr<IXMLDOMElement> element;
    if (document_->createElement(name_of(name), element.receive()) >= 0) elements_.push_back(element);
  }

  long count_children(IXMLDOMNode* parent) {
    CComPtr<IXMLDOMNodeList> children;
    long count = -1;
    check(parent->get_childNodes(children.receive()) >= 0, "an element has a list of children");
    check(children->get_length(&count) >= 0 && count >= 0, "children are counted");
    return count;
  }
  void append(IXMLDOMElement* parent, unsigned int choice) {
    std::size_t const index = choice % elements_.size();
    if (index == 0) return;
    CComPtr<IXMLDOMNode> added;
    IXMLDOMElement* const child = elements_[index].get();
    long const result = parent->appendChild(child, added.receive());
    check((result >= 0) == (added.get() == child), "what is appended is given back");
    if (result >= 0) check(count_children(parent) > 0, "a parent has its child");
    if (parent == child) check(result < 0, "no element stands in itself");
  }

  void attach(Input& script) {
    unsigned int const name = script.byte();
    CComPtr<IXMLDOMAttribute> attribute, old;
    if (document_->createAttribute(name_of(name), attribute.receive()) < 0) return;
    check(attribute->put_nodeValue(value_of(script)) >= 0, "an attribute takes every value");
    CComPtr<IXMLDOMElement> const element = some(elements_, script);
    check(element->appendChild(attribute.get(), nullptr) < 0, "an attribute is no child");
    check(element->setAttributeNode(attribute.get(), old.receive()) >= 0, "an element takes a new attribute");
    check(element->setAttributeNode(attribute.get(), nullptr) < 0, "an attribute stands on one element");
    attributes_.push_back(attribute);
  }
  /// Asked for now, or kept since its element stood elsewhere; null where there is none.
  CComPtr<IXMLDOMNode> some_attribute(Input& script) {
    unsigned int const choice = script.byte();
    if (choice % 2 != 0 && !attributes_.empty()) return some(attributes_, script);
    CComPtr<IXMLDOMNamedNodeMap> map;
    CComPtr<IXMLDOMNode> attribute;
    check(some(elements_, script)->get_attributes(map.receive()) >= 0, "an element has attributes");
    check(map->getNamedItem(name_of(choice / 2), attribute.receive()) >= 0, "a map answers every name");
    return attribute;
  }
  void put_value(Input& script) {
    CComPtr<IXMLDOMNode> const attribute = some_attribute(script);
    if (!attribute) return;
    tagVARIANT value;
    check(attribute->put_nodeValue(value_of(script)) >= 0, "an attribute on an element takes every value");
    check(attribute->get_nodeValue(&value) >= 0 && value.vt == VT_BSTR, "an attribute's value is a text");
  }

  /// Another view of one of them takes its turn with the others.
  void keep(IXMLDOMNode* node) {
    CComPtr<IXMLDOMElement> element;
    check(node->QueryInterface(IID_IXMLDOMElement, element.receive()) >= 0, "there are elements only");
    elements_.push_back(element);
  }
  void look_at_children(Input& script) {
    CComPtr<IXMLDOMNodeList> children;
    long count = 0;
    some(elements_, script)->get_childNodes(children.receive());
    children->get_length(&count);
    long const index = script.byte() - 1;
    CComPtr<IXMLDOMNode> child;
    bool const found = children->get_item(index, child.receive()) >= 0;
    check(found == (index >= 0 && index < count), "a list has the children that it counts");
    if (found) keep(child.get());
  }
  void select(Input& script) {
    unsigned int const name = script.byte();
    CComPtr<IXMLDOMNode> child;
    some(elements_, script)->selectSingleNode(name_of(name), child.receive());
    if (child) keep(child.get());
  }

  void nest(unsigned int levels, Input& script) {
    CComPtr<IXMLDOMElement> parent = some(elements_, script);
    for (unsigned int level = 0; level <= levels; ++level) {
      CComPtr<IXMLDOMElement> child;
      check(document_->createElement(u"n", child.receive()) >= 0, "an element of this name can be had");
      check(parent->appendChild(child.get(), nullptr) >= 0, "a new element can stand anywhere");
      parent = child;
    }
    elements_.push_back(parent);
  }

  void forget(unsigned int choice) {
    std::size_t const index = choice % elements_.size();
    if (index != 0) elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(index));
  }

  IXMLDOMDocument* document_;
  std::vector<CComPtr<IXMLDOMElement>> elements_;
  std::vector<CComPtr<IXMLDOMAttribute>> attributes_;
};

}  // namespace sivane::fuzzing
