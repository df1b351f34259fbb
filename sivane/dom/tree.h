// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: one document in the memory of pugixml. Every text in it is as the file shows it (characters.h).
#pragma once

#include <memory>
#include <new>
#include <pugixml.hpp>
#include <string>

namespace sivane::dom {

/// pugixml says by a null handle that memory is exhausted.
template <class Handle>
Handle not_null(Handle handle) {
  if (!handle) throw std::bad_alloc();
  return handle;
}

inline void check_memory(bool done) {
  if (!done) throw std::bad_alloc();
}

// pugixml's own forms that take a name say nothing of one for which there was no memory. What lacks its name
// would make a wrong document, and goes again.

inline pugi::xml_node append_element(pugi::xml_node parent, char const* name) {
  pugi::xml_node added = not_null(parent.append_child(pugi::node_element));
  if (added.set_name(name)) return added;
  parent.remove_child(added);
  throw std::bad_alloc();
}

inline void append_attribute(pugi::xml_node element, char const* name, char const* value) {
  pugi::xml_attribute added = not_null(element.append_attribute(""));
  if (added.set_name(name) && added.set_value(value)) return;
  element.remove_attribute(added);
  throw std::bad_alloc();
}

/// All references of a document share its tree, which is gone with the last of them. Nodes with children are
/// never freed singly, since pugixml descends into the children by recursion.
struct Tree {
  pugi::xml_node root() const {
    return document.find_child([](pugi::xml_node node) { return node.type() == pugi::node_element; });
  }

  bool may_be_deep = false;  ///< false: no element stands too deep to be read again, so that nobody need look
  pugi::xml_document store;
  pugi::xml_node document = append_element(store, "document");  ///< what is saved: the root and its siblings
  pugi::xml_node unplaced = append_element(store, "unplaced");  ///< elements that nobody has appended yet
};

}  // namespace sivane::dom
