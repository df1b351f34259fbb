// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/hex.h>
#include <sivane/xml/attributes.h>
#include <sivane/xml/numbers.h>
#include <sivane/xml/strings.h>

#include <cstring>
#include <optional>
#include <utility>

namespace sivane {

namespace {

using Map = IXMLDOMNamedNodeMap;
using Name = char16_t const*;

/// None where the attribute is missing or the DOM refuses.
std::optional<std::string> text_of(Map* map, Name name) {
  CComPtr<IXMLDOMNode> attribute;
  if (map->getNamedItem(name, attribute.receive()) < 0 || !attribute) return std::nullopt;
  tagVARIANT value;
  if (attribute->get_nodeValue(&value) < 0) return std::nullopt;
  return narrow(value.text());
}

/// Hands the text to `take`, if there is one.
template <class Take>
long read(Map* map, Name name, Take take) {
  std::optional<std::string> const text = text_of(map, name);
  if (!text) return E_FAIL;
  take(*text);
  return S_OK;
}

template <class Number>
long read_number(Map* map, Name name, Number& value) {
  return read(map, name, [&](std::string const& text) { value = static_cast<Number>(read_integer(text)); });
}

template <class Entry>
long read_entries(Map* map, Name name, std::vector<Entry>& value) {
  return read(map, name, [&](std::string const& text) { str2bin(text, value); });
}

tagVARIANT number_variant(unsigned int low_bits) { return tagVARIANT(static_cast<std::int32_t>(low_bits)); }

template <class Entry>
tagVARIANT hex_variant(std::vector<Entry> const& data) {
  std::string text;
  bin2str(data, text);
  return tagVARIANT(widen(text));
}

}  // namespace

long GetAttributeValue(Map* map, Name name, int& value) { return read_number(map, name, value); }

long GetAttributeValue(Map* map, Name name, unsigned long& value) {
  unsigned int low_bits = 0;
  long const result = read_number(map, name, low_bits);
  if (result == S_OK) value = low_bits;
  return result;
}

long GetAttributeValue(Map* map, Name name, unsigned int& value) { return read_number(map, name, value); }

long GetAttributeValue(Map* map, Name name, unsigned char& value) { return read_number(map, name, value); }

long GetAttributeValue(Map* map, Name name, bool& value) {
  int number = 0;
  long const result = read_number(map, name, number);
  if (result == S_OK) value = number == 1;
  return result;
}

long GetAttributeValue(Map* map, Name name, double& value) {
  return read(map, name, [&](std::string const& text) { value = read_double(text); });
}

long GetAttributeValue(Map* map, Name name, std::string& value) {
  return read(map, name, [&](std::string const& text) { value = text; });
}

long GetAttributeValue(Map* map, Name name, Text& value) {
  return read(map, name, [&](std::string const& text) {
    value = Text();
    value.assign(text);
  });
}

long GetAttributeValue(Map* map, Name name, std::vector<unsigned char>& value) {
  return read_entries(map, name, value);
}

long GetAttributeValue(Map* map, Name name, std::vector<int>& value) {
  return read_entries(map, name, value);
}

long GetAttributeValue(Map* map, Name name, std::vector<unsigned long>& value) {
  return read_entries(map, name, value);
}

long GetAttributeValue(Map* map, Name name, char* value, int size) {
  return read(map, name, [&](std::string const& text) {
    if (size <= 0) return;
    auto const room = static_cast<std::size_t>(size - 1);
    std::strncpy(value, text.c_str(), room);
    value[room] = '\0';
  });
}

long GetAttributeValue(Map* map, Name name, unsigned char* value, int size) {
  return read(map, name, [&](std::string const& text) { str2bin(text, value, size); });
}

using Document = IXMLDOMDocument;
using Element = IXMLDOMElement;

long AddAttribute(Document* doc, Element* element, Name name, int const& value) {
  return AddAttribute(doc, element, name, tagVARIANT(value));
}

long AddAttribute(Document* doc, Element* element, Name name, unsigned long const& value) {
  return AddAttribute(doc, element, name, number_variant(static_cast<unsigned int>(value)));
}

long AddAttribute(Document* doc, Element* element, Name name, unsigned int const& value) {
  return AddAttribute(doc, element, name, number_variant(value));
}

long AddAttribute(Document* doc, Element* element, Name name, double const& value) {
  return AddAttribute(doc, element, name, tagVARIANT(value));
}

long AddAttribute(Document* doc, Element* element, Name name, unsigned char const& value) {
  return AddAttribute(doc, element, name, number_variant(value));
}

long AddAttribute(Document* doc, Element* element, Name name, bool const& value) {
  return AddAttribute(doc, element, name, number_variant(value ? 1 : 0));
}

long AddAttribute(Document* doc, Element* element, Name name, std::string const& value) {
  return AddAttribute(doc, element, name, value.c_str());
}

long AddAttribute(Document* doc, Element* element, Name name, Text const& value) {
  return AddAttribute(doc, element, name, value.c_str());
}

long AddAttribute(Document* doc, Element* element, Name name, std::vector<unsigned char> const& value) {
  return AddAttribute(doc, element, name, hex_variant(value));
}

long AddAttribute(Document* doc, Element* element, Name name, std::vector<int> const& value) {
  return AddAttribute(doc, element, name, hex_variant(value));
}

long AddAttribute(Document* doc, Element* element, Name name, std::vector<unsigned long> const& value) {
  return AddAttribute(doc, element, name, hex_variant(value));
}

long AddAttribute(Document* doc, Element* element, Name name, char const* value) {
  return AddAttribute(doc, element, name, tagVARIANT(widen(value)));
}

long AddAttribute(Document* doc, Element* element, Name name, unsigned char const* value, int length) {
  std::string text;
  bin2str(value, text, length);
  return AddAttribute(doc, element, name, tagVARIANT(widen(text)));
}

long AddAttribute(Document* doc, Element* element, Name name, tagVARIANT value) {
  CComPtr<IXMLDOMAttribute> attribute, old;
  bool const stands = doc->createAttribute(name, attribute.receive()) >= 0 && attribute &&
                      attribute->put_nodeValue(std::move(value)) >= 0 &&
                      element->setAttributeNode(attribute.get(), old.receive()) >= 0;
  return stands ? S_OK : E_FAIL;
}

}  // namespace sivane
