// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/xml_input.h"

#include <sivane/dom/element_reader.h>
#include <sivane/sivane.h>

#include "input/source_stream.h"

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

void give(Node const& node, Command& command) {
  std::string const name = name_of(node);
  if (name == "error") return;
  if (find_class(name) == nullptr) {
    command.take_broken("no class for element");
  } else {
    command.take({.node = node.get(), .class_name = name});
  }
}

}  // namespace

void read_xml(Source& source, Command& command) try {
  SourceStream in(source);
  sivane::dom::ElementReader reader(in);
  if (reader.root_name() != "sections") {
    throw InputFault(source.name() + " is no document of sections: its root element is " +
                     reader.root_name());
  }
  while (Node const node = reader.next()) give(node, command);
} catch (sivane::error const& failure) {
  throw InputFault(source.name() + ": " + failure.what());
}

}  // namespace inspect
