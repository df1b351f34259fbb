// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/xml.h"

#include <sivane/sivane.h>

namespace inspect {

void XmlCommand::show(Section const& section) {
  std::unique_ptr<Table> const table = table_of(section);
  if (!table) return;
  writer_.write(std::string(class_of(section)->name),
                [&table](auto* document, auto* element) { table->save(document, element); });
}

void XmlCommand::show_failure(Section const&, Failure const& failure) {
  writer_.write("error", [this, &failure](auto* document, auto* element) {
    sivane::AddAttribute(document, element, u"number", number());
    sivane::AddAttribute(document, element, u"class", std::string(failure.class_name));
    sivane::AddAttribute(document, element, u"code", failure.code);
    sivane::AddAttribute(document, element, u"what", failure.what);
  });
}

}  // namespace inspect
