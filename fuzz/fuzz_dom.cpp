// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Arbitrary calls of the DOM, on a document and on an element that is written singly: both give the same
// text, which reads again. The first byte chooses where the text is cut to be refused.
#include <sivane/dom/document.h>
#include <sivane/dom/element_reader.h>
#include <sivane/dom/element_writer.h>
#include <sivane/foundation/error.h>

#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

#include "dom_script.h"

namespace {

using namespace sivane::fuzzing;
using sivane::CComPtr;
using sivane::dom::Document;

/// What `make` gives; nothing where it throws an `error`.
template <class Make>
std::optional<std::string> text_of(Make make) {
  try {
    return make();
  } catch (sivane::error const& failure) {
    check(*failure.what() != '\0', "a refused document gets a reason");
    return {};
  }
}

std::string by_document(Input script) {
  Document document;
  CComPtr<sivane::IXMLDOMElement> item;
  check(document.dom()->createElement(u"item", item.receive()) >= 0, "an element can be had");
  check(document.make_root("list")->appendChild(item.get(), nullptr) >= 0, "a root takes an element");
  DomScript(document.dom(), item.get()).run(script);
  Document const moved = std::move(document);
  return moved.save_string();
}

std::string by_writer(Input script) {
  std::ostringstream out;
  sivane::dom::ElementWriter writer(out, "list");
  writer.write("item", [&](auto* document, auto* item) { DomScript(document, item).run(script); });
  writer.finish();
  return out.str();
}

std::string by_reader(std::string const& text) {
  std::istringstream in(text);
  sivane::dom::ElementReader reader(in);
  int count = 0;
  while (reader.next()) ++count;
  return reader.root_name() + std::to_string(count);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  Input script(data, size);
  std::size_t const cut = script.byte();
  auto const text = text_of([&] { return by_document(script); });
  check(text_of([&] { return by_writer(script); }) == text, "an element alone is written as in a document");
  if (!text) return 0;
  check(Document::load_string(*text).save_string() == *text, "a loaded document is saved the same");
  check(by_reader(*text) == "list1", "a document has the one element that was written");
  std::string const part = text->substr(0, (text->size() - 1) * cut / 256);  // not the last line feed alone
  check(!text_of([&] { return Document::load_string(part).save_string(); }),
        "a document that is cut is refused");
  check(!text_of([&] { return by_reader(part); }), "and so it is by its elements");
  return 0;
}
