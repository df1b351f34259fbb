// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/xml/dom.h>

#include <cstddef>
#include <string>
#include <utility>

namespace sivane::testing {

/// A tree of the tests' own behind the interfaces of documents. It counts its objects and the operations
/// asked of it, and refuses one of them on demand.
class MemoryDom {
 public:
  /// How the chosen operation is refused: by its result, or, where it gives an object, by a success without
  /// one.
  enum class Refusal { result, no_object };

  CComPtr<IXMLDOMDocument> document();
  CComPtr<IXMLDOMElement> element(char16_t const* name);
  CComPtr<IXMLDOMNode> comment();

  /// Refuses the `nth` operation from here on, counted from 1; 0 refuses none.
  void refuse(int nth, Refusal refusal = Refusal::result);
  int operations() const { return operations_; }  ///< since the last `refuse`
  int objects() const { return objects_; }        ///< that somebody holds

 private:
  friend class Counted;

  int refused_ = 0;
  Refusal refusal_ = Refusal::result;
  int operations_ = 0;
  int objects_ = 0;
};

/// The tree below a node of a `MemoryDom`, an element a line: name and attributes in order, two blanks a
/// level. Control and high characters are a backslash and two digits.
std::string written(IXMLDOMNode* node);

// Nodes of a `MemoryDom`, asked without counting operations.
std::string name_of(IXMLDOMNode* node);
std::size_t child_count(IXMLDOMNode* node);
std::size_t attribute_count(IXMLDOMNode* node);
/// Name and value, as `written` has them.
std::pair<std::string, std::string> attribute_at(IXMLDOMNode* node, std::size_t index);
CComPtr<IXMLDOMNode> child_at(IXMLDOMNode* node, std::size_t index);
void take_child(IXMLDOMNode* node, std::size_t index);
/// The name of what was taken.
std::string take_attribute(IXMLDOMNode* node, std::size_t index);
/// The node itself and all nodes below it, attributes included.
int objects_below(IXMLDOMNode* node);

}  // namespace sivane::testing
