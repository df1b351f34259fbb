// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <string>
#include <type_traits>

#include "input.h"

namespace sivane::fuzzing {

/// The document of a table alone.
template <class Table>
std::string saved(Table const& table) {
  dom::Document document;
  CComPtr<IXMLDOMElement> const root = document.make_root("table");
  bool const answer = table.SaveSection(document.dom(), root.get());
  check(answer != std::is_same_v<Table, DsmCC>, "only the payload of DSM-CC has no form in documents");
  return document.save_string();
}

/// What the table's document loads as.
template <class Table>
Table loaded(std::string const& text) {
  dom::Document const document = dom::Document::load_string(text);
  Table table;
  table.Parse(static_cast<void*>(document.root_node().get()));
  return table;
}

/// For a table of any origin.
template <class Table>
void exercise_document(Table const& table) {
  std::string const text = saved(table);
  check(saved(loaded<Table>(text)) == text, "a loaded table gives the same document");
}

}  // namespace sivane::fuzzing
