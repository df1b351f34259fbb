// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Any text as a document: each child of its root that is named after a table class is loaded, dumped, saved
// and loaded again.
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "exercise_table.h"

namespace {

using sivane::CComPtr;
using sivane::dom::Document;
using sivane::fuzzing::check;
using sivane::fuzzing::dump_of;

template <class Table>
std::string saved(Table const& table) {
  Document document;
  CComPtr<sivane::IXMLDOMElement> const root = document.make_root("table");
  bool const answer = table.SaveSection(document.dom(), root.get());
  check(answer != std::is_same_v<Table, sivane::DsmCC>,
        "only the payload of DSM-CC has no form in documents");
  return document.save_string();
}

/// Loading may throw an `error`; when it has not, nothing behind it may.
template <class Table>
void exercise(sivane::IXMLDOMNode* node) {
  Table table;
  try {
    table.Parse(static_cast<void*>(node));
  } catch (sivane::error const& failure) {
    check(failure.what() != nullptr, "what() is never null");
    return;
  }
  check(table.valid, "a loaded table is valid");
  std::string const text = saved(table);
  Document const again = Document::load_string(text);
  Table loaded;
  loaded.Parse(static_cast<void*>(again.root_node().get()));
  check(dump_of(loaded) == dump_of(table), "a table dumps the same after its document");
  check(saved(loaded) == text, "a loaded table gives the same document");
}

struct Class {
  std::u16string_view name;
  void (*exercise)(sivane::IXMLDOMNode*);
};
constexpr Class classes[] = {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) {u"" #Class, exercise<sivane::Class>},
#include <sivane/tables/table_rows.inc>
};

void exercise_children(Document const& document) {
  CComPtr<sivane::IXMLDOMNodeList> children;
  long count = 0;
  check(document.root_node()->get_childNodes(children.receive()) >= 0, "a root has a list of children");
  check(children->get_length(&count) >= 0, "children are counted");
  for (long i = 0; i < count; ++i) {
    CComPtr<sivane::IXMLDOMNode> child;
    std::u16string name;
    check(children->get_item(i, child.receive()) >= 0 && child, "every child can be had");
    check(child->get_nodeName(&name) >= 0, "every child has a name");
    for (Class const& known : classes) {
      if (known.name == name) known.exercise(child.get());
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  try {
    exercise_children(Document::load_string({reinterpret_cast<char const*>(data), size}));
  } catch (sivane::error const& failure) {
    check(*failure.what() != '\0', "a refused document gets a reason");
  }
  return 0;
}
