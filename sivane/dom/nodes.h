// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the nodes of a tree, which are the objects of the DOM.
#pragma once

#include <sivane/dom/tree.h>
#include <sivane/xml/dom.h>

#include <string_view>

namespace sivane::dom {

/// Lies in a tree, and counts its references there.
template <class Interface>
class Object : public Interface {
 public:
  explicit Object(Tree& tree) : tree_(tree) {}
  Object(Object const&) = delete;
  Object& operator=(Object const&) = delete;

  long AddRef() final { return ++tree_.references; }
  long Release() final {
    long const left = --tree_.references;
    if (left == 0) delete &tree_;  // and with it this object
    return left;
  }
  long QueryInterface(InterfaceId, IXMLDOMElement**) override { return E_FAIL; }

  Tree& tree() const { return tree_; }

 protected:
  ~Object() = default;

 private:
  Tree& tree_;
};

/// Refuses what a kind of node does not do.
template <class Interface>
class Node : public Object<Interface> {
 public:
  using Object<Interface>::Object;

  long appendChild(IXMLDOMNode*, IXMLDOMNode**) override { return E_FAIL; }
  long get_attributes(IXMLDOMNamedNodeMap**) override { return E_FAIL; }
  long get_childNodes(IXMLDOMNodeList**) override { return E_FAIL; }
  long get_nodeValue(tagVARIANT*) override { return E_FAIL; }
  long put_nodeValue(tagVARIANT) override { return E_FAIL; }
  long selectSingleNode(char16_t const*, IXMLDOMNode**) override { return E_FAIL; }

 protected:
  ~Node() = default;
};

/// A text, a comment or a processing instruction of a loaded document.
class Leaf final : public Node<IXMLDOMNode>, public Place {
 public:
  Leaf(Tree& tree, Kind a_kind, std::string_view a_name, std::string_view a_value)
      : Node(tree), Place(a_kind), name(a_name), value(a_value) {}

  long get_nodeName(std::u16string* result) override;
  long get_nodeValue(tagVARIANT* result) override;

  std::string_view const name;  ///< the target of an instruction
  std::string_view const value;
};

class Attribute final : public Node<IXMLDOMAttribute> {
 public:
  Attribute(Tree& tree, std::string_view a_name) : Node(tree), name(a_name) {}

  long get_nodeName(std::u16string* result) override;
  long get_nodeValue(tagVARIANT* result) override;
  long put_nodeValue(tagVARIANT new_value) override;

  std::string_view const name;
  std::string_view value;
  bool is_attached = false;   ///< to an element
  Attribute* next = nullptr;  ///< of the same element
};

/// What has children: an element or the document.
template <class Interface>
class Parent : public Node<Interface>, public Branch {
 public:
  Parent(Tree& tree, Kind a_kind) : Node<Interface>(tree), Branch(a_kind) {}

  long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) override;
  long get_childNodes(IXMLDOMNodeList** children) override;
  long selectSingleNode(char16_t const* name, IXMLDOMNode** node) override;

 protected:
  ~Parent() = default;
};

class AttributeMap;

class Element final : public Parent<IXMLDOMElement> {
 public:
  Element(Tree& tree, std::string_view a_name) : Parent(tree, Kind::element), name(a_name) {}

  long QueryInterface(InterfaceId iid, IXMLDOMElement** element) override;
  long get_attributes(IXMLDOMNamedNodeMap** result) override;
  long get_nodeName(std::u16string* result) override;
  long setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) override;

  /// Puts it where one of the same name stands, which is given back, or behind the others.
  Attribute* attach(Attribute& attribute);

  std::string_view const name;
  Attribute* attributes = nullptr;

 private:
  AttributeMap* map_ = nullptr;  // made when it is asked for
};

class AttributeMap final : public Object<IXMLDOMNamedNodeMap> {
 public:
  AttributeMap(Tree& tree, Element const& element) : Object(tree), element_(element) {}
  long getNamedItem(char16_t const* name, IXMLDOMNode** node) override;

 private:
  Element const& element_;
};

class DocumentNode final : public Parent<IXMLDOMDocument> {
 public:
  explicit DocumentNode(Tree& tree) : Parent(tree, Kind::document) {}

  /// There is one root.
  long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) override;
  long get_nodeName(std::u16string* name) override;
  long createElement(char16_t const* name, IXMLDOMElement** element) override;
  long createAttribute(char16_t const* name, IXMLDOMAttribute** attribute) override;

  /// Null where there is none.
  Element* root() const;
};

/// The document node of a new tree.
CComPtr<DocumentNode> new_tree();

/// A new element at the end of `parent`. `name` is UTF-8, and is one.
Element& append_element(Tree& tree, Branch& parent, std::string_view name);

}  // namespace sivane::dom
