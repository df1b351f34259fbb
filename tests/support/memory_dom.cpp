// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "memory_dom.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace sivane::testing {

/// An object and the tree that counts it.
class Counted {
 public:
  explicit Counted(MemoryDom& tree) : dom(tree) { ++dom.objects_; }
  Counted(Counted const&) = delete;
  virtual ~Counted() { --dom.objects_; }

  /// Counts an operation; what it is to answer instead of doing anything, if this is the one.
  bool is_refused(long& result, bool gives_object) const {
    result = gives_object && dom.refusal_ == MemoryDom::Refusal::no_object ? S_OK : -1;
    return ++dom.operations_ == dom.refused_;
  }

  MemoryDom& dom;
  long references = 0;
};

namespace {

#define SIVANE_REFUSABLE(gives_object) \
  if (long result = 0; is_refused(result, gives_object)) return result

template <class Interface>
class Object : public Interface, public Counted {
 public:
  using Counted::Counted;
  long AddRef() override { return ++references; }
  long Release() override {
    long const left = --references;
    if (left == 0) delete this;
    return left;
  }
  long QueryInterface(InterfaceId, IXMLDOMElement** element) override {
    SIVANE_REFUSABLE(true);
    *element = dynamic_cast<IXMLDOMElement*>(this);
    if (*element == nullptr) return E_FAIL;
    AddRef();
    return S_OK;
  }
};

template <class Given>
long give(Given* object, Given** out) {
  if (out != nullptr) *out = CComPtr<Given>(object).detach();
  return S_OK;
}

/// What the three kinds of nodes hold, reachable from each of their interfaces.
struct Node {
  virtual ~Node() = default;
  std::u16string name;
  tagVARIANT value;
  std::vector<CComPtr<IXMLDOMNode>> children, attributes;
};

Node& node_of(IXMLDOMNode* node) { return dynamic_cast<Node&>(*node); }

class List final : public Object<IXMLDOMNodeList> {
 public:
  List(MemoryDom& tree, Node const& node) : Object(tree), children_(node.children) {}
  long get_length(long* length) override {
    SIVANE_REFUSABLE(false);
    *length = static_cast<long>(children_.size());
    return S_OK;
  }
  long get_item(long index, IXMLDOMNode** node) override {
    SIVANE_REFUSABLE(true);
    return give(children_.at(static_cast<std::size_t>(index)).get(), node);
  }

 private:
  std::vector<CComPtr<IXMLDOMNode>> children_;
};

CComPtr<IXMLDOMNode> named(std::vector<CComPtr<IXMLDOMNode>> const& nodes, std::u16string const& name) {
  auto const found = std::find_if(nodes.begin(), nodes.end(),
                                  [&](auto const& node) { return node_of(node.get()).name == name; });
  return found == nodes.end() ? CComPtr<IXMLDOMNode>() : *found;
}

class Map final : public Object<IXMLDOMNamedNodeMap> {
 public:
  Map(MemoryDom& tree, Node const& node) : Object(tree), attributes_(node.attributes) {}
  long getNamedItem(char16_t const* name, IXMLDOMNode** node) override {
    SIVANE_REFUSABLE(true);
    return give(named(attributes_, name).get(), node);
  }

 private:
  std::vector<CComPtr<IXMLDOMNode>> attributes_;
};

template <class Interface>
class NodeObject : public Object<Interface>, public Node {
 public:
  using Object<Interface>::Object;
  using Object<Interface>::is_refused;
  long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) override {
    SIVANE_REFUSABLE(added != nullptr);
    children.emplace_back(child);
    return give(child, added);
  }
  long get_attributes(IXMLDOMNamedNodeMap** map) override {
    SIVANE_REFUSABLE(true);
    if (name[0] == u'#') return E_FAIL;
    return give<IXMLDOMNamedNodeMap>(new Map(this->dom, *this), map);
  }
  long get_childNodes(IXMLDOMNodeList** list) override {
    SIVANE_REFUSABLE(true);
    return give<IXMLDOMNodeList>(new List(this->dom, *this), list);
  }
  long get_nodeName(std::u16string* out) override {
    SIVANE_REFUSABLE(false);
    *out = name;
    return S_OK;
  }
  long get_nodeValue(tagVARIANT* out) override {
    SIVANE_REFUSABLE(false);
    *out = value;
    return S_FALSE;  // a success like any other
  }
  long put_nodeValue(tagVARIANT in) override {
    SIVANE_REFUSABLE(false);
    value = std::move(in);
    return S_OK;
  }
  long selectSingleNode(char16_t const* child, IXMLDOMNode** node) override {
    SIVANE_REFUSABLE(true);
    return give(named(children, child).get(), node);
  }
};

class Attribute final : public NodeObject<IXMLDOMAttribute> {
 public:
  using NodeObject::NodeObject;
};

class Element final : public NodeObject<IXMLDOMElement> {
 public:
  using NodeObject::NodeObject;
  long setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) override {
    SIVANE_REFUSABLE(false);
    auto const same = std::find_if(attributes.begin(), attributes.end(), [attribute](auto const& present) {
      return node_of(present.get()).name == node_of(attribute).name;
    });
    if (same == attributes.end()) {
      attributes.emplace_back(attribute);
      return give<IXMLDOMAttribute>(nullptr, old);
    }
    CComPtr<IXMLDOMNode> const replaced = std::exchange(*same, CComPtr<IXMLDOMNode>(attribute));
    return give(dynamic_cast<IXMLDOMAttribute*>(replaced.get()), old);
  }
};

class Document final : public NodeObject<IXMLDOMDocument> {
 public:
  using NodeObject::NodeObject;
  long createElement(char16_t const* its_name, IXMLDOMElement** element) override {
    return create<Element>(its_name, element);
  }
  long createAttribute(char16_t const* its_name, IXMLDOMAttribute** attribute) override {
    return create<Attribute>(its_name, attribute);
  }

 private:
  template <class Kind, class Interface>
  long create(char16_t const* its_name, Interface** out) {
    SIVANE_REFUSABLE(true);
    auto* const made = new Kind(dom);
    made->name = its_name;
    return give<Interface>(made, out);
  }
};

std::string printable(std::u16string const& text) {
  constexpr char digits[] = "0123456789abcdef";
  std::string printed;
  for (char16_t const unit : text) {
    if (unit >= ' ' && unit <= '~' && unit != '\\') {
      printed += static_cast<char>(unit);
    } else {
      printed += std::string("\\") + digits[unit >> 4 & 0xF] + digits[unit & 0xF];
    }
  }
  return printed;
}

void write(IXMLDOMNode* node, std::string const& indent, std::string& text) {
  Node const& it = node_of(node);
  text += indent + printable(it.name);
  for (auto const& attribute : it.attributes) {
    Node const& a = node_of(attribute.get());
    text += ' ' + printable(a.name) + "=\"" + printable(a.value.text()) + '"';
  }
  text += '\n';
  for (auto const& child : it.children) write(child.get(), indent + "  ", text);
}

}  // namespace

CComPtr<IXMLDOMDocument> MemoryDom::document() { return CComPtr<IXMLDOMDocument>(new Document(*this)); }

CComPtr<IXMLDOMElement> MemoryDom::element(char16_t const* name) {
  auto* const made = new Element(*this);
  made->name = name;
  return CComPtr<IXMLDOMElement>(made);
}

CComPtr<IXMLDOMNode> MemoryDom::comment() { return CComPtr<IXMLDOMNode>(element(u"#comment").get()); }

void MemoryDom::refuse(int nth, Refusal refusal) {
  refused_ = nth;
  refusal_ = refusal;
  operations_ = 0;
}

std::string written(IXMLDOMNode* node) {
  std::string text;
  write(node, "", text);
  return text;
}

std::string name_of(IXMLDOMNode* node) { return printable(node_of(node).name); }
std::size_t child_count(IXMLDOMNode* node) { return node_of(node).children.size(); }
std::size_t attribute_count(IXMLDOMNode* node) { return node_of(node).attributes.size(); }
std::pair<std::string, std::string> attribute_at(IXMLDOMNode* node, std::size_t index) {
  Node const& attribute = node_of(node_of(node).attributes.at(index).get());
  return {printable(attribute.name), printable(attribute.value.text())};
}
CComPtr<IXMLDOMNode> child_at(IXMLDOMNode* node, std::size_t index) {
  return node_of(node).children.at(index);
}

void take_child(IXMLDOMNode* node, std::size_t index) {
  auto& all = node_of(node).children;
  all.erase(all.begin() + static_cast<std::ptrdiff_t>(index));
}

std::string take_attribute(IXMLDOMNode* node, std::size_t index) {
  auto& all = node_of(node).attributes;
  CComPtr<IXMLDOMNode> const taken = all.at(index);
  all.erase(all.begin() + static_cast<std::ptrdiff_t>(index));
  return name_of(taken.get());
}

int objects_below(IXMLDOMNode* node) {
  int count = 1 + static_cast<int>(attribute_count(node));
  for (auto const& child : node_of(node).children) count += objects_below(child.get());
  return count;
}

}  // namespace sivane::testing
