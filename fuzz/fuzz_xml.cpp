// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Any text as a document: each element that is named after a table class is loaded, dumped, saved and loaded
// again; what descriptors any element has are loaded, and their values have texts. A DOM of a host takes it
// in, and gives it back, but for one operation, which the bytes choose by their sum.
#include <sivane/dom/document.h>
#include <sivane/sivane.h>

#include <cstdint>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>

#include "exercise_table.h"
#include "memory_dom.h"
#include "value_texts.h"

namespace {

using sivane::CComPtr;
using sivane::dom::Document;
using sivane::fuzzing::check;
using sivane::fuzzing::dump_of;
using sivane::fuzzing::loaded;
using sivane::fuzzing::saved;
using sivane::testing::MemoryDom;
using sivane::testing::objects_below;
using sivane::testing::written;

int choice = 0;  // of the input at hand

template <class Step>
bool is_done(Step step) {
  try {
    return step();
  } catch (sivane::error const&) {
    return false;
  }
}

/// Of the operations that a step without refusals took, the chosen one.
int chosen_of(MemoryDom const& dom) { return choice % dom.operations() + 1; }

/// Loads from a DOM that refuses one operation.
template <class Table>
void load_in_part(MemoryDom& dom, sivane::IXMLDOMElement* root) {
  auto const load = [&] { return Table().Parse(static_cast<sivane::IXMLDOMNode*>(root)), true; };
  dom.refuse(0);
  check(is_done(load), "what was saved can be loaded");
  int const nth = chosen_of(dom);
  for (auto const refusal : {MemoryDom::Refusal::result, MemoryDom::Refusal::no_object}) {
    dom.refuse(nth, refusal);
    check(!is_done(load), "loading fails where the DOM refuses");
  }
}

/// Saves into a DOM that refuses one operation. What is below a descriptor may be missing without a word.
template <class Table>
void exercise_refusals(Table const& table) {
  MemoryDom whole, part;
  auto const root = whole.element(u"it"), partial_root = part.element(u"it");
  auto const save = [&table](MemoryDom& dom, auto const& element) {
    return is_done([&] { return table.SaveSection(dom.document().get(), element.get()); });
  };
  whole.refuse(0);
  if (!save(whole, root)) return;  // DSM-CC
  part.refuse(chosen_of(whole));
  bool const is_saved = save(part, partial_root);
  check(!is_saved || written(partial_root.get()) != written(root.get()), "what was refused is missing");
  check(part.objects() == objects_below(partial_root.get()), "a refusal leaves no node behind");
  load_in_part<Table>(whole, root.get());
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
  Table const again = loaded<Table>(text);
  check(dump_of(again) == dump_of(table), "a table dumps the same after its document");
  check(saved(again) == text, "a loaded table gives the same document");
  exercise_refusals(again);
}

struct Class {
  std::u16string_view name;
  void (*exercise)(sivane::IXMLDOMNode*);
};
constexpr Class classes[] = {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) {u"" #Class, exercise<sivane::Class>},
#include <sivane/tables/table_rows.inc>
};

void check_descriptors(sivane::IXMLDOMNode* owner) {
  sivane::DescriptorSet set;
  try {
    set._parse_descriptors(owner);
  } catch (sivane::error const& failure) {
    check(failure.what() != nullptr, "what() is never null");
  }
  sivane::fuzzing::check_texts(set);
}

void exercise_element(sivane::IXMLDOMNode* element) {
  std::u16string name;
  check(element->get_nodeName(&name) >= 0, "every node has a name");
  for (Class const& known : classes) {
    if (known.name == name) known.exercise(element);
  }
  check_descriptors(element);
  CComPtr<sivane::IXMLDOMNodeList> children;
  if (element->get_childNodes(children.receive()) < 0) return;  // a text or a comment
  long count = 0;
  check(children->get_length(&count) >= 0, "children are counted");
  for (long i = 0; i < count; ++i) {
    CComPtr<sivane::IXMLDOMNode> child;
    check(children->get_item(i, child.receive()) >= 0 && child, "every child can be had");
    exercise_element(child.get());
  }
}

std::optional<Document> document_of(std::string_view text) {
  try {
    return Document::load_string(text);
  } catch (sivane::error const& failure) {
    check(*failure.what() != '\0', "a refused document gets a reason");
    return {};
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  choice = std::accumulate(data, data + size, 0);
  auto const document = document_of({reinterpret_cast<char const*>(data), size});
  if (document) exercise_element(document->root_node().get());
  return 0;
}
