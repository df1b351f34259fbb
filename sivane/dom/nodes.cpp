// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/characters.h>
#include <sivane/dom/nodes.h>
#include <sivane/dom/refusal.h>
#include <sivane/dom/writer.h>

#include <string>
#include <utility>
#include <vector>

namespace sivane::dom {

namespace {

using TreePtr = std::shared_ptr<Tree>;

/// Gives the reference to the caller.
template <class Interface, class Object>
long give(Interface** receiver, CComPtr<Object> object) {
  *receiver = object.detach();
  return S_OK;
}

template <class Object, class... Arguments>
CComPtr<Object> make(Arguments&&... arguments) {
  return CComPtr<Object>(new Object(std::forward<Arguments>(arguments)...));
}

/// Counts references.
template <class Interface>
class Counted : public Interface {
 public:
  Counted() = default;
  Counted(Counted const&) = delete;
  Counted& operator=(Counted const&) = delete;
  virtual ~Counted() = default;

  long AddRef() final { return ++references_; }
  long Release() final {
    long const left = --references_;
    if (left == 0) delete this;
    return left;
  }
  long QueryInterface(InterfaceId, IXMLDOMElement**) override { return E_FAIL; }

 private:
  long references_ = 0;
};

/// Refuses what a kind of node does not do.
template <class Interface>
class Node : public Counted<Interface> {
 public:
  long appendChild(IXMLDOMNode*, IXMLDOMNode**) override { return E_FAIL; }
  long get_attributes(IXMLDOMNamedNodeMap**) override { return E_FAIL; }
  long get_childNodes(IXMLDOMNodeList**) override { return E_FAIL; }
  long get_nodeValue(tagVARIANT*) override { return E_FAIL; }
  long put_nodeValue(tagVARIANT) override { return E_FAIL; }
  long selectSingleNode(char16_t const*, IXMLDOMNode**) override { return E_FAIL; }
};

/// A text, a comment or a processing instruction of a loaded document.
class Leaf final : public Node<IXMLDOMNode> {
 public:
  Leaf(TreePtr tree, pugi::xml_node node) : tree_(std::move(tree)), node_(node) {}

  long get_nodeName(std::u16string* name) override {
    *name = node_.type() == pugi::node_pcdata    ? u"#text"
            : node_.type() == pugi::node_comment ? u"#comment"
                                                 : from_utf8(node_.name());
    return S_OK;
  }
  long get_nodeValue(tagVARIANT* value) override {
    *value = tagVARIANT(from_utf8(node_.value()));
    return S_OK;
  }

 private:
  TreePtr tree_;
  pugi::xml_node node_;
};

/// What has children: an element or the document.
template <class Interface>
class Parent : public Node<Interface> {
 public:
  Parent(TreePtr tree, pugi::xml_node node) : tree_(std::move(tree)), node_(node) {}

  long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) override;
  long get_childNodes(IXMLDOMNodeList** children) override;
  long selectSingleNode(char16_t const* name, IXMLDOMNode** node) override;

  TreePtr const& tree() const { return tree_; }
  pugi::xml_node node() const { return node_; }

 protected:
  void set_node(pugi::xml_node node) { node_ = node; }

 private:
  TreePtr tree_;
  pugi::xml_node node_;
};

class Element final : public Parent<IXMLDOMElement> {
 public:
  using Parent::Parent;

  long QueryInterface(InterfaceId, IXMLDOMElement** element) override {
    return give(element, CComPtr<IXMLDOMElement>(this));
  }
  long get_attributes(IXMLDOMNamedNodeMap** attributes) override;
  long get_nodeName(std::u16string* name) override {
    *name = from_utf8(node().name());
    return S_OK;
  }
  long setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) override;

  bool move_to(pugi::xml_node parent);
};

/// An attribute by its name, on an element or with a text of its own. It never holds a handle of pugixml: the
/// element may move, and stays known.
class Attribute final : public Node<IXMLDOMAttribute> {
 public:
  Attribute(CComPtr<Element> owner, std::string name) : owner_(std::move(owner)), name_(std::move(name)) {}
  explicit Attribute(std::string name, std::string text = {})
      : name_(std::move(name)), text_(std::move(text)) {}

  long get_nodeName(std::u16string* name) override {
    *name = from_utf8(name_);
    return S_OK;
  }
  long get_nodeValue(tagVARIANT* value) override {
    *value = tagVARIANT(from_utf8(owner_ ? on_element().value() : text_.c_str()));
    return S_OK;
  }
  long put_nodeValue(tagVARIANT value) override {
    std::string text = to_utf8(value.text());
    if (owner_) {
      check_memory(on_element().set_value(text.c_str()));
    } else {
      text_ = std::move(text);
    }
    return S_OK;
  }

  /// Puts the text on an element, which the attribute belongs to from then on; gives back one with the text
  /// that stood there before, if any.
  CComPtr<Attribute> attach(Element& element);
  bool is_attached() const { return static_cast<bool>(owner_); }

 private:
  pugi::xml_attribute on_element() const { return owner_->node().attribute(name_.c_str()); }

  CComPtr<Element> owner_;
  std::string name_;
  std::string text_;  ///< while there is no owner
};

class Document final : public Parent<IXMLDOMDocument> {
 public:
  explicit Document(TreePtr const& tree) : Parent(tree, tree->document) {}

  /// There is one root.
  long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) override {
    return tree()->root() ? E_FAIL : Parent::appendChild(child, added);
  }
  long get_nodeName(std::u16string* name) override {
    *name = u"#document";
    return S_OK;
  }
  long createElement(char16_t const* name, IXMLDOMElement** element) override {
    std::string const text = to_utf8(name);
    if (!is_name(text)) return E_FAIL;
    return give(element, element_node(tree(), append_element(tree()->unplaced, text.c_str())));
  }
  long createAttribute(char16_t const* name, IXMLDOMAttribute** attribute) override {
    std::string text = to_utf8(name);
    return is_name(text) ? give(attribute, make<Attribute>(std::move(text))) : E_FAIL;
  }
};

class AttributeMap final : public Counted<IXMLDOMNamedNodeMap> {
 public:
  explicit AttributeMap(CComPtr<Element> element) : element_(std::move(element)) {}

  long getNamedItem(char16_t const* name, IXMLDOMNode** node) override {
    *node = nullptr;
    std::string text = to_utf8(name);
    if (!element_->node().attribute(text.c_str())) return S_FALSE;
    return give(node, make<Attribute>(element_, std::move(text)));
  }

 private:
  CComPtr<Element> element_;
};

CComPtr<IXMLDOMNode> view_of(TreePtr const& tree, pugi::xml_node node) {
  if (node.type() == pugi::node_element) return element_node(tree, node);
  return CComPtr<IXMLDOMNode>(new Leaf(tree, node));
}

/// The children as they were when the list was asked for, each found in constant time.
class NodeList final : public Counted<IXMLDOMNodeList> {
 public:
  NodeList(TreePtr tree, pugi::xml_node parent)
      : tree_(std::move(tree)), nodes_(parent.children().begin(), parent.children().end()) {}

  long get_length(long* length) override {
    *length = static_cast<long>(nodes_.size());
    return S_OK;
  }
  long get_item(long index, IXMLDOMNode** node) override {
    if (index < 0 || index >= static_cast<long>(nodes_.size())) return E_FAIL;
    return give(node, view_of(tree_, nodes_[static_cast<std::size_t>(index)]));
  }

 private:
  TreePtr tree_;
  std::vector<pugi::xml_node> nodes_;
};

template <class Interface>
long Parent<Interface>::appendChild(IXMLDOMNode* child, IXMLDOMNode** added) {
  auto* const element = dynamic_cast<Element*>(child);
  if (element == nullptr || element->tree() != tree_ || !element->move_to(node_)) return E_FAIL;
  return added == nullptr ? S_OK : give(added, CComPtr<IXMLDOMNode>(child));
}

template <class Interface>
long Parent<Interface>::get_childNodes(IXMLDOMNodeList** children) {
  return give(children, make<NodeList>(tree_, node_));
}

template <class Interface>
long Parent<Interface>::selectSingleNode(char16_t const* name, IXMLDOMNode** node) {
  *node = nullptr;
  std::string const wanted = to_utf8(name);
  for (pugi::xml_node const child : node_) {
    if (child.type() == pugi::node_element && child.name() == wanted)
      return give(node, view_of(tree_, child));
  }
  return S_FALSE;
}

long Element::get_attributes(IXMLDOMNamedNodeMap** attributes) {
  return give(attributes, make<AttributeMap>(CComPtr<Element>(this)));
}

long Element::setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) {
  auto* const own = dynamic_cast<Attribute*>(attribute);
  if (own == nullptr || own->is_attached()) return E_FAIL;
  CComPtr<Attribute> replaced = own->attach(*this);
  return old == nullptr ? S_OK : give(old, std::move(replaced));
}

/// A copy of an element without children. Nothing is left of it where memory runs out.
pugi::xml_node append_copy(pugi::xml_node parent, pugi::xml_node element) {
  pugi::xml_node const copy = append_element(parent, element.name());
  try {
    for (pugi::xml_attribute const attribute : element.attributes()) {
      append_attribute(copy, attribute.name(), attribute.value());
    }
  } catch (...) {
    parent.remove_child(copy);
    throw;
  }
  return copy;
}

/// The levels from a node to the top of its tree, or too many.
int levels_down_to(pugi::xml_node node) {
  int levels = 0;
  for (; node && levels <= max_levels; node = node.parent()) ++levels;
  return levels;
}

/// False if `parent` stands within this element. pugixml climbs up from `parent` to know that; where the way
/// is long, an element without children, which needs no such test, is made anew: while it is unplaced nobody
/// else refers to it.
bool Element::move_to(pugi::xml_node parent) {
  pugi::xml_node const before = node();
  int const levels_above = levels_down_to(parent);
  bool const is_leaf = !before.first_child();
  tree()->may_be_deep |= is_leaf ? levels_above >= max_levels : is_too_deep(before, levels_above);
  bool const is_fresh = is_leaf && before.parent() == tree()->unplaced && before != parent;
  if (!is_fresh || levels_above <= max_levels) return static_cast<bool>(parent.append_move(before));
  set_node(append_copy(parent, before));
  tree()->unplaced.remove_child(before);
  return true;
}

CComPtr<Attribute> Attribute::attach(Element& element) {
  CComPtr<Attribute> old;
  if (pugi::xml_attribute standing = element.node().attribute(name_.c_str())) {
    old = make<Attribute>(name_, standing.value());
    check_memory(standing.set_value(text_.c_str()));
  } else {
    append_attribute(element.node(), name_.c_str(), text_.c_str());
  }
  owner_ = CComPtr<Element>(&element);
  return old;
}

}  // namespace

CComPtr<IXMLDOMDocument> document_node(TreePtr const& tree) {
  return CComPtr<IXMLDOMDocument>(new Document(tree));
}

CComPtr<IXMLDOMElement> element_node(TreePtr tree, pugi::xml_node element) {
  return CComPtr<IXMLDOMElement>(new Element(std::move(tree), element));
}

}  // namespace sivane::dom
