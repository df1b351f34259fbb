// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "failing_dom.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace sivane::testing {

struct FailingDom::Account {
  enum class Answer { yes, no, nothing };
  Answer answer() {
    if (++operations != refused) return Answer::yes;
    return refusal == Refusal::no_object ? Answer::nothing : Answer::no;
  }

  long live = 0;
  long references = 0;
  long operations = 0;
  long refused = 0;
  Refusal refusal = Refusal::negative;
};

namespace {

using AccountPtr = std::shared_ptr<FailingDom::Account>;
using Answer = FailingDom::Account::Answer;

constexpr long negative_result = -1;

template <class Interface>
class Object : public Interface {
 public:
  explicit Object(AccountPtr account) : account_(std::move(account)) { ++account_->live; }
  Object(Object const&) = delete;
  Object& operator=(Object const&) = delete;
  virtual ~Object() { --account_->live; }

  long AddRef() final { return ++account_->references, ++count_; }
  long Release() final {
    --account_->references;
    const long left = --count_;
    if (left == 0) delete this;
    return left;
  }
  long QueryInterface(InterfaceId, IXMLDOMElement**) override {
    return operate([] {}), negative_result;
  }

 protected:
  AccountPtr const& account() const { return account_; }

  /// An operation that does one thing.
  template <class Step>
  long operate(Step step) {
    if (account_->answer() != Answer::yes) return negative_result;
    step();
    return S_OK;
  }
  /// An operation that gives the object that `make` makes.
  template <class Result, class Make>
  long give(Result** receiver, Make make) {
    const Answer answer = account_->answer();
    if (answer == Answer::no) return negative_result;
    CComPtr<Result> object = make();
    if (answer == Answer::nothing) object = {};
    if (receiver != nullptr) *receiver = object.detach();
    return S_OK;
  }

 private:
  AccountPtr account_;
  long count_ = 0;
};

using Nodes = std::vector<CComPtr<IXMLDOMNode>>;

class List final : public Object<IXMLDOMNodeList> {
 public:
  List(AccountPtr const& account, Nodes nodes) : Object(account), nodes_(std::move(nodes)) {}
  long get_length(long* length) override {
    return operate([&] { *length = static_cast<long>(nodes_.size()); });
  }
  long get_item(long index, IXMLDOMNode** node) override {
    return give(node, [&] { return nodes_.at(static_cast<std::size_t>(index)); });
  }

 private:
  Nodes nodes_;
};

/// Every kind of node holds what any of them may have; what it does not do is refused.
template <class Interface>
class Node : public Object<Interface> {
 public:
  Node(AccountPtr const& account, std::u16string own_name, std::u16string own_text = {})
      : Object<Interface>(account), name(std::move(own_name)), text(std::move(own_text)) {}

  long appendChild(IXMLDOMNode* child, IXMLDOMNode** added) override {
    return this->give(added, [&] { return children.emplace_back(child); });
  }
  long get_attributes(IXMLDOMNamedNodeMap**) override {
    return this->operate([] {}), negative_result;
  }
  long get_childNodes(IXMLDOMNodeList** list) override {
    return this->give(list, [&] { return CComPtr<IXMLDOMNodeList>(new List(this->account(), children)); });
  }
  long get_nodeName(std::u16string* result) override {
    return this->operate([&] { *result = name; });
  }
  long get_nodeValue(tagVARIANT* value) override {
    return this->operate([&] { *value = tagVARIANT(text); });
  }
  long put_nodeValue(tagVARIANT value) override {
    return this->operate([&] { text = value.text(); });
  }
  long selectSingleNode(char16_t const* wanted, IXMLDOMNode** node) override;

  std::u16string name;
  std::u16string text;
  Nodes children;
};

using Attribute = Node<IXMLDOMAttribute>;
using Attributes = std::vector<CComPtr<Attribute>>;

/// Null where there is none.
template <class Ptr>
Ptr find(std::vector<Ptr> const& nodes, std::u16string const& name) {
  const auto found = std::find_if(nodes.begin(), nodes.end(), [&](Ptr const& n) { return n->name == name; });
  return found == nodes.end() ? Ptr() : *found;
}

class Map final : public Object<IXMLDOMNamedNodeMap> {
 public:
  Map(AccountPtr const& account, Attributes attributes)
      : Object(account), attributes_(std::move(attributes)) {}
  long getNamedItem(char16_t const* name, IXMLDOMNode** node) override {
    return give(node, [&] { return CComPtr<IXMLDOMNode>(find(attributes_, name)); });
  }

 private:
  Attributes attributes_;
};

class Element final : public Node<IXMLDOMElement> {
 public:
  using Node::Node;
  long QueryInterface(InterfaceId, IXMLDOMElement** element) override {
    return give(element, [&] { return CComPtr<IXMLDOMElement>(this); });
  }
  long get_attributes(IXMLDOMNamedNodeMap** map) override {
    return give(map, [&] { return CComPtr<IXMLDOMNamedNodeMap>(new Map(account(), attributes_)); });
  }
  long setAttributeNode(IXMLDOMAttribute* attribute, IXMLDOMAttribute** old) override {
    CComPtr<Attribute> added(dynamic_cast<Attribute*>(attribute));
    return give(old, [&] {
      for (CComPtr<Attribute>& present : attributes_) {
        if (present->name == added->name) return CComPtr<IXMLDOMAttribute>(std::exchange(present, added));
      }
      attributes_.push_back(added);
      return CComPtr<IXMLDOMAttribute>();
    });
  }

 private:
  Attributes attributes_;
};

template <class Interface>
long Node<Interface>::selectSingleNode(char16_t const* wanted, IXMLDOMNode** node) {
  return this->give(node, [&] {
    for (CComPtr<IXMLDOMNode> const& child : children) {
      auto* const element = dynamic_cast<Element*>(child.get());
      if (element != nullptr && element->name == wanted) return child;
    }
    return CComPtr<IXMLDOMNode>();
  });
}

class Document final : public Node<IXMLDOMDocument> {
 public:
  explicit Document(AccountPtr const& account) : Node(account, u"#document") {}
  long createElement(char16_t const* wanted, IXMLDOMElement** element) override {
    return give(element, [&] { return CComPtr<IXMLDOMElement>(new Element(account(), wanted)); });
  }
  long createAttribute(char16_t const* wanted, IXMLDOMAttribute** attribute) override {
    return give(attribute, [&] { return CComPtr<IXMLDOMAttribute>(new Attribute(account(), wanted)); });
  }
};

}  // namespace

FailingDom::FailingDom() : account_(std::make_shared<Account>()), document_(new Document(account_)) {}
FailingDom::~FailingDom() = default;

CComPtr<IXMLDOMElement> FailingDom::element(std::u16string name) const {
  return CComPtr<IXMLDOMElement>(new Element(account_, std::move(name)));
}

CComPtr<IXMLDOMNode> FailingDom::comment(std::u16string text) const {
  return CComPtr<IXMLDOMNode>(new Node<IXMLDOMNode>(account_, u"#comment", std::move(text)));
}

void FailingDom::refuse(long nth, Refusal refusal) {
  account_->operations = 0;
  account_->refused = nth;
  account_->refusal = refusal;
}

long FailingDom::operations() const { return account_->operations; }
long FailingDom::live_objects() const { return account_->live - 1; }
long FailingDom::references() const { return account_->references - 1; }

}  // namespace sivane::testing
