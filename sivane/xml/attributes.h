// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/text.h>
#include <sivane/xml/dom.h>

#include <string>
#include <vector>

namespace sivane {

// One value as one attribute, in the forms of the documents. Integers are signed decimal numbers of 32 bits
// (4294967295 is "-1"), booleans "1" and "0". Byte b of a string is U+00bb; a string ends at its first zero
// byte. Arrays are lower-case hexadecimal digits, two a byte and eight an entry. Nothing depends on the
// locale.

/// Reads the attribute `name`: 0, or E_FAIL where it is missing or the DOM refuses; `value` stays as it was
/// then. No text is refused: a number is read as far as it goes, keeps its low 32 bits (8 for a byte) and is
/// 0 without a digit; only 1 is true.
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, int& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, unsigned long& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, unsigned int& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, unsigned char& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, bool& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, double& value);
/// Replaces what the string holds. Code points that are no byte become '?'.
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, std::string& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, Text& value);
/// Appends as `str2bin` does: a text of no whole number of groups adds nothing.
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name,
                                  std::vector<unsigned char>& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, std::vector<int>& value);
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name,
                                  std::vector<unsigned long>& value);
/// Fills an array of `size` characters: at most `size` - 1 of the text, and zeros after them.
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, char* value, int size);
/// Fills at most `size` bytes; those that the text does not reach stay.
SIVANE_API long GetAttributeValue(IXMLDOMNamedNodeMap* map, char16_t const* name, unsigned char* value,
                                  int size);

/// Puts the attribute `name` on `element`, in place of one of that name: 0, or E_FAIL where the DOM refuses.
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             int const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             unsigned long const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             unsigned int const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             double const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             unsigned char const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             bool const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             std::string const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             Text const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             std::vector<unsigned char> const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             std::vector<int> const& value);
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             std::vector<unsigned long> const& value);
/// A string that ends at its zero.
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             char const* value);
/// `length` bytes.
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             unsigned char const* value, int length);
/// The value as it is.
SIVANE_API long AddAttribute(IXMLDOMDocument* doc, IXMLDOMElement* element, char16_t const* name,
                             tagVARIANT value);

}  // namespace sivane
