// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A large EIT saved and loaded, beside the document's own work alone: building the same tree of texts that
// are ready, and going through it and reading every text; and beside what pugixml takes
// for building and writing it.
#include <sivane/dom/document.h>
#include <sivane/tables/eit.h>

#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "compare.h"
#include "memory_dom.h"
#include "plain_bytes.h"

namespace {

using sivane::CComPtr;
using sivane::dom::Document;
using sivane::testing::Bytes;
using sivane::testing::characters;
using sivane::testing::hex;
using sivane::testing::make_descriptor;
using sivane::testing::operator+;

/// Sections of 20 events each, as a schedule has them.
sivane::Eit large_eit() {
  Bytes const name =
      make_descriptor(0x4D, characters("eng") + Bytes{21} + characters("The lighthouse keeper") + Bytes{42} +
                                characters("A documentary in three parts about the sea"));
  Bytes const loop =
      name + make_descriptor(0x50, hex("F1 03 01 656E67")) + make_descriptor(0x54, hex("2300"));
  Bytes body = hex("0001 0002 00 50");
  for (int event = 0; event < 20; ++event) {
    body = body + hex("1234 C079 124500 014530 80") + Bytes{static_cast<unsigned char>(loop.size())} + loop;
  }
  Bytes const section = sivane::testing::make_section({.table_id = 0x50}, body);
  sivane::Eit eit;
  for (int i = 0; i < 50; ++i) eit.Parse(section.data());
  return eit;
}

/// An element with all that is below it.
struct Plain {
  std::u16string name;
  std::vector<std::pair<std::u16string, std::u16string>> attributes;
  std::vector<Plain> children;
};

std::u16string wide(std::string const& ascii) { return {ascii.begin(), ascii.end()}; }

/// Reads a line of a written tree: name="value" behind the element's name.
Plain plain_of(std::string const& line) {
  Plain element;
  std::size_t at = line.find_first_not_of(' ');
  std::size_t end = std::min(line.find(' ', at), line.size());
  element.name = wide(line.substr(at, end - at));
  while (end < line.size()) {
    std::size_t const equals = line.find('=', end);
    std::size_t const quote = line.find('"', equals + 2);
    element.attributes.emplace_back(wide(line.substr(end + 1, equals - end - 1)),
                                    wide(line.substr(equals + 2, quote - equals - 2)));
    end = quote + 1;
  }
  return element;
}

Plain plain_tree(sivane::Eit const& eit) {
  sivane::testing::MemoryDom dom;
  auto const root = dom.element(u"eit");
  eit.SaveSection(dom.document().get(), root.get());
  std::istringstream lines(sivane::testing::written(root.get()));
  std::string line;
  std::getline(lines, line);
  Plain tree = plain_of(line);
  while (std::getline(lines, line)) {
    Plain* parent = &tree;
    for (std::size_t level = line.find_first_not_of(' ') / 2; level > 1; --level)
      parent = &parent->children.back();
    parent->children.push_back(plain_of(line));
  }
  return tree;
}

void build(sivane::IXMLDOMDocument* document, sivane::IXMLDOMElement* element, Plain const& tree) {
  for (auto const& [name, value] : tree.attributes) {
    CComPtr<sivane::IXMLDOMAttribute> attribute, old;
    document->createAttribute(name.c_str(), attribute.receive());
    attribute->put_nodeValue(sivane::tagVARIANT(value));
    element->setAttributeNode(attribute.get(), old.receive());
  }
  for (Plain const& child : tree.children) {
    CComPtr<sivane::IXMLDOMElement> made;
    document->createElement(child.name.c_str(), made.receive());
    build(document, made.get(), child);
    element->appendChild(made.get(), nullptr);
  }
}

/// The letters of all texts.
std::size_t walk(sivane::IXMLDOMNode* node, Plain const& tree) {
  std::size_t letters = 0;
  CComPtr<sivane::IXMLDOMNamedNodeMap> map;
  node->get_attributes(map.receive());
  for (auto const& [name, value] : tree.attributes) {
    CComPtr<sivane::IXMLDOMNode> attribute;
    sivane::tagVARIANT read;
    map->getNamedItem(name.c_str(), attribute.receive());
    attribute->get_nodeValue(&read);
    letters += read.bstrVal.size();
  }
  CComPtr<sivane::IXMLDOMNodeList> children;
  long count = 0;
  node->get_childNodes(children.receive());
  children->get_length(&count);
  for (long i = 0; i < count; ++i) {
    CComPtr<sivane::IXMLDOMNode> child;
    children->get_item(i, child.receive());
    letters += walk(child.get(), tree.children[static_cast<std::size_t>(i)]);
  }
  return letters;
}

void save_eit(benchmark::State& state) {
  sivane::Eit const eit = large_eit();
  Plain const tree = plain_tree(eit);
  std::string saved, built;
  sivane::bench::compare(
      state, 0, "the time of building the same tree",
      [&] {
        Document document;
        eit.SaveSection(document.dom(), document.make_root("eit").get());
        if (saved.empty()) saved = document.save_string();
      },
      [&] {
        Document document;
        build(document.dom(), document.make_root("eit").get(), tree);
        if (built.empty()) built = document.save_string();
      });
  if (saved != built) state.SkipWithError("the trees differ");
}

void load_eit(benchmark::State& state) {
  sivane::Eit const eit = large_eit();
  Plain const tree = plain_tree(eit);
  Document document;
  eit.SaveSection(document.dom(), document.make_root("eit").get());
  CComPtr<sivane::IXMLDOMNode> const root = document.root_node();
  std::size_t events = 0;
  std::size_t letters = 0;
  sivane::bench::compare(
      state, 0, "the time of reading every text of the same tree",
      [&] {
        sivane::Eit loaded;
        loaded.Parse(static_cast<void*>(root.get()));
        events = loaded.event_infos.size();
      },
      [&] { letters = walk(root.get(), tree); });
  if (events != eit.event_infos.size() || letters == 0) state.SkipWithError("an event is missing");
}

std::string saved_by(sivane::Eit const& eit) {
  Document document;
  eit.SaveSection(document.dom(), document.make_root("eit").get());
  return document.save_string();
}

void build_in_pugixml(pugi::xml_node parent, pugi::xml_node const& element) {
  pugi::xml_node made = parent.append_child(element.name());
  for (pugi::xml_attribute const attribute : element.attributes()) {
    made.append_attribute(attribute.name()).set_value(attribute.value());
  }
  for (pugi::xml_node const& child : element.children()) build_in_pugixml(made, child);
}

void save_beside_pugixml(benchmark::State& state) {
  sivane::Eit const eit = large_eit();
  pugi::xml_document tree;
  tree.load_string(saved_by(eit).c_str());
  sivane::bench::compare(
      state, 0, "the time of building the same tree in pugixml",
      [&] {
        Document document;
        eit.SaveSection(document.dom(), document.make_root("eit").get());
      },
      [&] {
        pugi::xml_document document;
        build_in_pugixml(document, tree.document_element());
      });
}

struct StringWriter final : pugi::xml_writer {
  void write(void const* data, std::size_t size) override {
    text.append(static_cast<char const*>(data), size);
  }
  std::string text;
};

void write_beside_pugixml(benchmark::State& state) {
  Document document;
  large_eit().SaveSection(document.dom(), document.make_root("eit").get());
  pugi::xml_document tree;
  tree.load_string(document.save_string().c_str());
  std::string written;
  StringWriter writer;
  sivane::bench::compare(
      state, document.save_string().size(), "the time of pugixml", [&] { written = document.save_string(); },
      [&] {
        writer.text.clear();
        tree.save(writer, "  ", pugi::format_indent, pugi::encoding_utf8);
      });
  if (written.size() < writer.text.size()) state.SkipWithError("the documents differ");
}

}  // namespace

BENCHMARK(save_eit)->Name("XML, saving an EIT of 1000 events")->Apply(sivane::bench::timed_by_hand);
BENCHMARK(load_eit)->Name("XML, loading an EIT of 1000 events")->Apply(sivane::bench::timed_by_hand);
BENCHMARK(save_beside_pugixml)
    ->Name("XML, saving an EIT of 1000 events, to pugixml")
    ->Apply(sivane::bench::timed_by_hand);
BENCHMARK(write_beside_pugixml)
    ->Name("XML, writing an EIT of 1000 events, to pugixml")
    ->Apply(sivane::bench::timed_by_hand);
