// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/characters.h>
#include <sivane/dom/nodes.h>

#include <charconv>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace sivane::dom {

namespace {

/// Adds the reference of the receiver.
template <class Interface>
long give(Interface** receiver, Interface* object) {
  object->AddRef();
  *receiver = object;
  return S_OK;
}

/// The object in its own class, or null if it is none of this DOM.
template <class Own, class Interface>
Own* own(Interface* object) {
  return object != nullptr && typeid(*object) == typeid(Own) ? static_cast<Own*>(object) : nullptr;
}

/// The node in the view that everybody has of it.
IXMLDOMNode* node_at(Place* place) {
  if (place->kind == Kind::element) return static_cast<Element*>(place);
  return static_cast<Leaf*>(place);
}

/// As it is to stand in the tree; empty where it is refused.
std::string_view kept_name(Arena& arena, char16_t const* name) {
  std::u16string_view const wide(name);
  char* const text = arena.text(wide.size());
  bool const is_good = copy_plain(wide, text) && is_name({text, wide.size()});
  return is_good ? std::string_view(text, wide.size()) : std::string_view();
}

std::string_view kept_text(Arena& arena, std::u16string_view wide) {
  char* const text = arena.text(wide.size());
  return copy_plain(wide, text) ? std::string_view(text, wide.size()) : arena.keep(to_utf8(wide));
}

std::string_view kept_value(Arena& arena, tagVARIANT const& value) {
  if (value.vt == VT_BSTR) return kept_text(arena, value.bstrVal);
  if (value.vt != VT_I4) return kept_text(arena, value.text());
  char digits[16];
  auto const end = std::to_chars(digits, digits + sizeof digits, value.lVal).ptr;
  return arena.keep({digits, static_cast<std::size_t>(end - digits)});
}

/// The children as they were when the list was asked for, each found in constant time.
class NodeList final : public IXMLDOMNodeList {
 public:
  explicit NodeList(IXMLDOMNode* parent, Branch const& branch) : parent_(parent) {
    for (Place* child = branch.first; child != nullptr; child = child->next) nodes_.push_back(node_at(child));
  }
  virtual ~NodeList() = default;

  long AddRef() override { return ++references_; }
  long Release() override {
    long const left = --references_;
    if (left == 0) delete this;
    return left;
  }
  long QueryInterface(InterfaceId, IXMLDOMElement**) override { return E_FAIL; }
  long get_length(long* length) override {
    *length = static_cast<long>(nodes_.size());
    return S_OK;
  }
  long get_item(long index, IXMLDOMNode** node) override {
    if (index < 0 || index >= static_cast<long>(nodes_.size())) return E_FAIL;
    return give(node, nodes_[static_cast<std::size_t>(index)]);
  }

 private:
  long references_ = 0;
  CComPtr<IXMLDOMNode> parent_;  // with which the tree stays
  std::vector<IXMLDOMNode*> nodes_;
};

}  // namespace

long Leaf::get_nodeName(std::u16string* result) {
  *result = kind == Kind::text ? u"#text" : kind == Kind::comment ? u"#comment" : from_utf8(name);
  return S_OK;
}

long Leaf::get_nodeValue(tagVARIANT* result) {
  *result = tagVARIANT(from_utf8(value));
  return S_OK;
}

long Attribute::get_nodeName(std::u16string* result) {
  *result = from_utf8(name);
  return S_OK;
}

long Attribute::get_nodeValue(tagVARIANT* result) {
  *result = tagVARIANT(from_utf8(value));
  return S_OK;
}

long Attribute::put_nodeValue(tagVARIANT new_value) {
  value = kept_value(tree().arena, new_value);
  return S_OK;
}

template <class Interface>
long Parent<Interface>::appendChild(IXMLDOMNode* child, IXMLDOMNode** added) {
  auto* const element = own<Element>(child);
  if (element == nullptr || &element->tree() != &this->tree() || stands_within(*this, *element))
    return E_FAIL;
  remove(*element);
  append(*this, *element);
  return added == nullptr ? S_OK : give(added, child);
}

template <class Interface>
long Parent<Interface>::get_childNodes(IXMLDOMNodeList** children) {
  return give(children, static_cast<IXMLDOMNodeList*>(new NodeList(this, *this)));
}

template <class Interface>
long Parent<Interface>::selectSingleNode(char16_t const* name, IXMLDOMNode** node) {
  *node = nullptr;
  for (Place* child = first; child != nullptr; child = child->next) {
    if (child->kind == Kind::element && is_same(static_cast<Element*>(child)->name, name))
      return give(node, node_at(child));
  }
  return S_FALSE;
}

long Element::QueryInterface(InterfaceId, IXMLDOMElement** element) {
  return give(element, static_cast<IXMLDOMElement*>(this));
}

long Element::get_attributes(IXMLDOMNamedNodeMap** result) {
  if (map_ == nullptr) map_ = tree().arena.make<AttributeMap>(tree(), *this);
  return give(result, static_cast<IXMLDOMNamedNodeMap*>(map_));
}

long Element::get_nodeName(std::u16string* result) {
  *result = from_utf8(name);
  return S_OK;
}

long Element::setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) {
  auto* const given = own<Attribute>(attribute);
  if (given == nullptr || &given->tree() != &tree() || given->is_attached) return E_FAIL;
  Attribute* const replaced = attach(*given);
  if (old == nullptr) return S_OK;
  *old = replaced;
  if (replaced != nullptr) replaced->AddRef();
  return S_OK;
}

Attribute* Element::attach(Attribute& attribute) {
  Attribute** at = &attributes;
  while (*at != nullptr && (*at)->name != attribute.name) at = &(*at)->next;
  Attribute* const replaced = std::exchange(*at, &attribute);
  attribute.is_attached = true;
  if (replaced == nullptr) return nullptr;
  attribute.next = std::exchange(replaced->next, nullptr);
  replaced->is_attached = false;
  return replaced;
}

long AttributeMap::getNamedItem(char16_t const* name, IXMLDOMNode** node) {
  Attribute* found = element_.attributes;
  while (found != nullptr && !is_same(found->name, name)) found = found->next;
  *node = nullptr;
  return found == nullptr ? S_FALSE : give(node, static_cast<IXMLDOMNode*>(found));
}

long DocumentNode::appendChild(IXMLDOMNode* child, IXMLDOMNode** added) {
  return root() != nullptr ? E_FAIL : Parent::appendChild(child, added);
}

long DocumentNode::get_nodeName(std::u16string* name) {
  *name = u"#document";
  return S_OK;
}

long DocumentNode::createElement(char16_t const* name, IXMLDOMElement** element) {
  std::string_view const text = kept_name(tree().arena, name);
  if (text.empty()) return E_FAIL;
  return give(element, static_cast<IXMLDOMElement*>(tree().arena.make<Element>(tree(), text)));
}

long DocumentNode::createAttribute(char16_t const* name, IXMLDOMAttribute** attribute) {
  std::string_view const text = kept_name(tree().arena, name);
  if (text.empty()) return E_FAIL;
  return give(attribute, static_cast<IXMLDOMAttribute*>(tree().arena.make<Attribute>(tree(), text)));
}

Element* DocumentNode::root() const {
  Place* child = first;
  while (child != nullptr && child->kind != Kind::element) child = child->next;
  return static_cast<Element*>(child);
}

CComPtr<DocumentNode> new_tree() {
  auto tree = std::make_unique<Tree>();
  CComPtr<DocumentNode> document(tree->arena.make<DocumentNode>(*tree));
  tree.release();
  return document;
}

Element& append_element(Tree& tree, Branch& parent, std::string_view name) {
  auto* const element = tree.arena.make<Element>(tree, tree.arena.keep(name));
  append(parent, *element);
  return *element;
}

}  // namespace sivane::dom
