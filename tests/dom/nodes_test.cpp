// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The operations on the nodes of a document: where nodes go, how long references last, what is refused.
#include <gtest/gtest.h>
#include <sivane/dom/document.h>
#include <sivane/xml/attributes.h>

#include <memory>

#include "expect_error.h"
#include "memory_dom.h"

namespace sivane::testing {
namespace {

using dom::Document;
using Element = CComPtr<IXMLDOMElement>;
using Node = CComPtr<IXMLDOMNode>;

Element made(Document const& document, char16_t const* name) {
  Element element;
  EXPECT_EQ(document.dom()->createElement(name, element.receive()), S_OK);
  return element;
}

std::string attribute(IXMLDOMNode* node, char16_t const* name) {
  CComPtr<IXMLDOMNamedNodeMap> map;
  EXPECT_EQ(node->get_attributes(map.receive()), S_OK);
  std::string value = "none";
  GetAttributeValue(map.get(), name, value);
  return value;
}

CComPtr<IXMLDOMNodeList> children(IXMLDOMNode* node) {
  CComPtr<IXMLDOMNodeList> list;
  EXPECT_EQ(node->get_childNodes(list.receive()), S_OK);
  return list;
}

/// The names of the children, each behind a blank.
std::u16string child_names(IXMLDOMNode* node) {
  auto const list = children(node);
  std::u16string names;
  long length = -1;
  EXPECT_EQ(list->get_length(&length), S_OK);
  for (long i = 0; i < length; ++i) {
    Node child;
    std::u16string name;
    EXPECT_EQ(list->get_item(i, child.receive()), S_OK);
    EXPECT_EQ(child->get_nodeName(&name), S_OK);
    names += u' ' + name;
  }
  return names;
}

/// The document without its first line.
std::string body(Document const& document) {
  std::string const text = document.save_string();
  return text.substr(text.find('\n') + 1);
}

TEST(Nodes, AreListedInOrder) {
  Document const document = Document::load_string("<a><b/>text<!--c--><?target?><B/><b x='1'/></a>");
  Node const root = document.root_node();
  EXPECT_EQ(child_names(root.get()), u" b #text #comment target B b");
  EXPECT_EQ(child_names(document.dom()), u" a");
  std::u16string name;
  EXPECT_EQ(document.dom()->get_nodeName(&name), S_OK);
  EXPECT_EQ(name, u"#document");

  Node found, item;
  EXPECT_EQ(root->selectSingleNode(u"b", found.receive()), S_OK);
  EXPECT_EQ(attribute(found.get(), u"x"), "none");
  for (char16_t const* const missing : {u"c", u"target", u"#text", u"", u"a/b", u"*", u"bb"}) {
    EXPECT_GE(root->selectSingleNode(missing, found.receive()), 0);
    EXPECT_FALSE(found);
  }
  Document const foreign = Document::load_string("<a><\u00E4 x\u00E4='2'/></a>");
  EXPECT_EQ(foreign.root_node()->selectSingleNode(u"\u00E4", found.receive()), S_OK);
  EXPECT_EQ(attribute(found.get(), u"x\u00E4"), "2");
  auto const list = children(root.get());
  for (long const index : {-1L, 6L, 1L << 40}) EXPECT_LT(list->get_item(index, item.receive()), 0);

  tagVARIANT value;
  EXPECT_EQ(list->get_item(1, item.receive()), S_OK);
  EXPECT_EQ(item->get_nodeValue(&value), S_OK);
  EXPECT_EQ(value.bstrVal, u"text");
  CComPtr<IXMLDOMNamedNodeMap> map;
  EXPECT_LT(item->get_attributes(map.receive()), 0);
  Element element;
  EXPECT_LT(item->QueryInterface(IID_IXMLDOMElement, element.receive()), 0);
  EXPECT_LT(document.dom()->QueryInterface(IID_IXMLDOMElement, element.receive()), 0);
}

TEST(Nodes, GoWhereTheyAreAppendedWithAllThatTheyHold) {
  Document document;
  Element const root = document.make_root("root"), list = made(document, u"list"),
                item = made(document, u"item");
  EXPECT_EQ(body(document), "<root />\n");
  CComPtr<IXMLDOMAttribute> attribute;
  document.dom()->createAttribute(u"a", attribute.receive());
  attribute->put_nodeValue(tagVARIANT(1));
  EXPECT_EQ(item->setAttributeNode(attribute.get(), nullptr), S_OK);
  AddAttribute(document.dom(), item.get(), u"b", "2");

  Node added;
  EXPECT_EQ(list->appendChild(item.get(), nullptr), S_OK);  // outside the tree still
  EXPECT_EQ(root->appendChild(list.get(), added.receive()), S_OK);
  Element view;
  EXPECT_EQ(added->QueryInterface(IID_IXMLDOMElement, view.receive()), S_OK);
  AddAttribute(document.dom(), view.get(), u"n", 1);
  attribute->put_nodeValue(tagVARIANT(0.5));  // on an element that has moved twice
  root->appendChild(made(document, u"last").get(), nullptr);
  EXPECT_EQ(body(document),
            "<root>\n  <list n=\"1\">\n    <item a=\"0.5\" b=\"2\" />\n  </list>\n  <last />\n</root>\n");
  EXPECT_EQ(root->appendChild(item.get(), nullptr), S_OK);  // from within the tree
  EXPECT_EQ(body(document),
            "<root>\n  <list n=\"1\" />\n  <last />\n  <item a=\"0.5\" b=\"2\" />\n</root>\n");
}

TEST(Nodes, AttributesKeepTheirOrderAndAreReplacedByName) {
  Document document;
  Element const root = document.make_root("root");
  for (char16_t const* const name : {u"c", u"a", u"b"}) AddAttribute(document.dom(), root.get(), name, "old");
  CComPtr<IXMLDOMAttribute> fresh, old;
  document.dom()->createAttribute(u"a", fresh.receive());
  EXPECT_EQ(root->setAttributeNode(fresh.get(), old.receive()), S_OK);
  EXPECT_EQ(body(document), "<root c=\"old\" a=\"\" b=\"old\" />\n");
  tagVARIANT value;
  old->get_nodeValue(&value);
  EXPECT_EQ(value.bstrVal, u"old");
  EXPECT_LT(root->setAttributeNode(fresh.get(), nullptr), 0);  // it has an element
  old->put_nodeValue(tagVARIANT(u"older"));                    // on no element
  EXPECT_EQ(attribute(root.get(), u"a"), "");
  EXPECT_EQ(root->setAttributeNode(old.get(), nullptr), S_OK);
  EXPECT_EQ(attribute(root.get(), u"a"), "older");
}

TEST(Nodes, RefuseWhatMakesNoTree) {
  Document document, other;
  MemoryDom foreign;
  Element const root = document.make_root("root"), inner = made(document, u"inner"),
                alone = made(document, u"alone");
  root->appendChild(inner.get(), nullptr);
  Element const other_root = other.make_root("root"), foreign_element = foreign.element(u"foreign");
  auto const comment = foreign.comment();
  for (IXMLDOMNode* const child : std::initializer_list<IXMLDOMNode*>{
           root.get(), other_root.get(), foreign_element.get(), comment.get(), document.dom(), nullptr}) {
    EXPECT_LT(root->appendChild(child, nullptr), 0);
    EXPECT_LT(inner->appendChild(child, nullptr), 0);
  }
  EXPECT_LT(alone->appendChild(alone.get(), nullptr), 0);
  EXPECT_LT(document.dom()->appendChild(alone.get(), nullptr), 0);  // a second root
  CComPtr<IXMLDOMAttribute> attribute;
  for (char16_t const* const name : {u"", u"a b", u"1", u"a=", u"\u00E4", u"\u2401"}) {
    Element element;
    EXPECT_LT(document.dom()->createElement(name, element.receive()), 0);
    EXPECT_LT(document.dom()->createAttribute(name, attribute.receive()), 0);
  }
  foreign.document()->createAttribute(u"a", attribute.receive());
  EXPECT_LT(root->setAttributeNode(attribute.get(), nullptr), 0);
  EXPECT_LT(root->put_nodeValue(tagVARIANT(1)), 0);
  EXPECT_EQ(body(document), "<root>\n  <inner />\n</root>\n");
}

TEST(Nodes, OutliveTheirDocument) {
  auto document = std::make_unique<Document>(Document::load_string("<a><b c='1'/>text</a>"));
  Element const root = document->root_element(), loose = made(*document, u"loose");
  auto const list = children(root.get());
  CComPtr<IXMLDOMDocument> maker(document->dom());
  CComPtr<IXMLDOMNamedNodeMap> map;
  Node child, text, named;
  list->get_item(0, child.receive());
  list->get_item(1, text.receive());
  child->get_attributes(map.receive());
  map->getNamedItem(u"c", named.receive());
  document.reset();

  EXPECT_EQ(child_names(maker.get()), u" a");
  maker = {};
  std::u16string name;
  tagVARIANT value;
  EXPECT_EQ(root->appendChild(loose.get(), nullptr), S_OK);
  EXPECT_EQ(child_names(root.get()), u" b #text loose");
  EXPECT_EQ(text->get_nodeValue(&value), S_OK);
  child = {};
  map = {};
  EXPECT_EQ(named->put_nodeValue(tagVARIANT(2)), S_OK);
  EXPECT_EQ(list->get_item(0, child.receive()), S_OK);
  EXPECT_EQ(attribute(child.get(), u"c"), "2");
}

/// A walk of quadratic time does not end before the time limit of the test.
TEST(Nodes, ALongListIsWalkedInLinearTime) {
  constexpr long count = 1000000;
  std::string text = "<a>";
  for (long i = 0; i < count; ++i) text += "<b/>";
  auto const list = children(Document::load_string(text + "</a>").root_node().get());
  Node child;
  for (long i = count - 1; i >= 0; --i) ASSERT_EQ(list->get_item(i, child.receive()), S_OK);
  EXPECT_LT(list->get_item(count, child.receive()), 0);
}

/// Nor one that climbs the tree for each element.
TEST(Nodes, AnyDepthIsBuiltAndFreedWithoutRecursion) {
  constexpr int depth = 1000000;
  Document downwards, upwards;
  Element at = downwards.make_root("root");
  for (int i = 0; i < depth; ++i) {
    Element next = made(downwards, u"a");
    AddAttribute(downwards.dom(), next.get(), u"i", i);
    ASSERT_EQ(at->appendChild(next.get(), nullptr), S_OK);
    at = next;
  }
  EXPECT_EQ(attribute(at.get(), u"i"), std::to_string(depth - 1));

  Element below = made(upwards, u"a");
  for (int i = 1; i < depth; ++i) {
    Element const above = made(upwards, u"a");
    ASSERT_EQ(above->appendChild(below.get(), nullptr), S_OK);
    below = above;
  }
  ASSERT_EQ(upwards.dom()->appendChild(below.get(), nullptr), S_OK);
  for (Document const* const document : {&downwards, &upwards}) {
    EXPECT_TRUE(throws([&] { document->save_string(); }, "cannot save the document: more than 64 levels"));
  }
}

}  // namespace
}  // namespace sivane::testing
