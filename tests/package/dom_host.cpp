// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A C++17 host of the installed sivane::dom: an attribute that another document loads, and what is refused.
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <iostream>
#include <string>

int main() {
  sivane::dom::Document document;
  auto const root = document.make_root("pat");
  sivane::AddAttribute(document.dom(), root.get(), u"crc32", 0xFFFFFFFFUL);
  std::string const text = document.save_string();
  std::cout << text;

  unsigned long value = 0;
  sivane::CComPtr<sivane::IXMLDOMNamedNodeMap> attributes;
  sivane::dom::Document::load_string(text).root_node()->get_attributes(attributes.receive());
  sivane::GetAttributeValue(attributes.get(), u"crc32", value);
  try {
    sivane::dom::Document::load_string("<a><b></a>");
  } catch (sivane::error const& failure) {
    std::cout << failure.what() << '\n';
    return value == 0xFFFFFFFFUL ? 0 : 1;
  }
  return 1;
}
