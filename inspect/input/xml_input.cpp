// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/xml_input.h"

#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <istream>
#include <iterator>

namespace inspect {

namespace {

using Node = sivane::CComPtr<sivane::IXMLDOMNode>;

std::string name_of(Node const& node) {
  std::u16string wide;
  node->get_nodeName(&wide);
  std::string name;
  for (char16_t const letter : wide) name += letter < 0x80 ? static_cast<char>(letter) : '?';
  return name;
}

bool is_element(Node const& node) {
  sivane::CComPtr<sivane::IXMLDOMElement> element;
  return node->QueryInterface(sivane::IID_IXMLDOMElement, element.receive()) >= 0;
}

void give(Node const& node, Command& command) {
  std::string const name = name_of(node);
  if (!is_element(node) || name == "error") return;
  if (find_class(name) == nullptr) {
    command.take_broken("no class for element");
  } else {
    command.take({.node = node.get(), .class_name = name});
  }
}

void give_children(Node const& parent, Command& command) {
  sivane::CComPtr<sivane::IXMLDOMNodeList> children;
  long count = 0;
  if (parent->get_childNodes(children.receive()) < 0 || children->get_length(&count) < 0) return;
  for (long i = 0; i < count; ++i) {
    Node child;
    if (children->get_item(i, child.receive()) >= 0) give(child, command);
  }
}

}  // namespace

bool read_xml(std::istream& in, Command& command) {
  std::string const text{std::istreambuf_iterator<char>(in), {}};
  if (in.bad()) {
    report("the input cannot be read on");
    return false;
  }
  try {
    auto const document = sivane::dom::Document::load_string(text);
    Node const root = document.root_node();
    if (name_of(root) == "sections") {
      give_children(root, command);
      return true;
    }
    report("no document of sections: its root element is " + name_of(root));
  } catch (sivane::error const& failure) {
    report(failure.what());
  }
  return false;
}

}  // namespace inspect
