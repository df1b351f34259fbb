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

inline pugi::xml_node append_element(pugi::xml_node parent, char const* name) {
  return not_null(parent.append_child(name));
}

inline void append_attribute(pugi::xml_node element, char const* name, char const* value) {
  check_memory(not_null(element.append_attribute(name)).set_value(value));
}

/// All references of a document share its tree, which is gone with the last of them. Nodes with children are
/// never freed singly, since pugixml descends into the children by recursion.
struct Tree {
  pugi::xml_node root() const {
    return document.find_child([](pugi::xml_node node) { return node.type() == pugi::node_element; });
  }

  pugi::xml_document store;
  pugi::xml_node document = append_element(store, "document");  ///< what is saved: the root and its siblings
  pugi::xml_node unplaced = append_element(store, "unplaced");  ///< elements that nobody has appended yet
};

}  // namespace sivane::dom
