// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/xml.h"

#include <sivane/sivane.h>

#include <ostream>

namespace inspect {

void XmlCommand::show(Section const& section) {
  std::unique_ptr<Table> const table = table_of(section);
  if (table) table->save(document_.dom(), append(class_of(section)->name).get());
}

void XmlCommand::show_failure(Failure const& failure) {
  auto const element = append("error");
  sivane::AddAttribute(document_.dom(), element.get(), u"number", number());
  sivane::AddAttribute(document_.dom(), element.get(), u"class", std::string(failure.class_name));
  sivane::AddAttribute(document_.dom(), element.get(), u"code", failure.code);
  sivane::AddAttribute(document_.dom(), element.get(), u"what", failure.what);
}

sivane::CComPtr<sivane::IXMLDOMElement> XmlCommand::append(std::string_view name) {
  sivane::CComPtr<sivane::IXMLDOMElement> element;
  std::u16string const wide(name.begin(), name.end());
  document_.dom()->createElement(wide.c_str(), element.receive());
  root_->appendChild(element.get(), nullptr);
  return element;
}

void XmlCommand::finish() { out_ << document_.save_string(); }

}  // namespace inspect
