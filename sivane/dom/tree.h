// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: one document in memory. Its nodes are the objects of the DOM themselves and lie in the tree's
// arena, together with their texts, which are as the file shows them (characters.h). A reference to any of
// them keeps the whole tree, which is gone with the last one; no node is freed singly.
#pragma once

#include <sivane/dom/arena.h>
#include <sivane/xml/dom.h>

#include <string_view>

namespace sivane::dom {

struct Tree {
  Arena arena;
  long references = 0;
};

enum class Kind : unsigned char { document, element, text, comment, instruction };

struct Branch;

/// Where a node stands.
struct Place {
  explicit Place(Kind a_kind) : kind(a_kind) {}

  Kind kind;
  Branch* parent = nullptr;  ///< null for the document, and for an element that nobody has appended
  Place* previous = nullptr;
  Place* next = nullptr;
};

/// What has children.
struct Branch : Place {
  using Place::Place;

  Place* first = nullptr;
  Place* last = nullptr;
};

/// Makes `child`, which stands nowhere, the last one.
void append(Branch& parent, Place& child);
/// Takes it from where it stands, if it does.
void remove(Place& child);
/// Whether `inner` is `outer` or below it.
bool stands_within(Branch const& inner, Branch const& outer);

/// Goes through all that is below a node, and leaves each again. Without recursion, since a tree may have any
/// depth.
class Walk {
 public:
  explicit Walk(Place const& root) : root_(&root), at_(&root) {}

  Place const& place() const { return *at_; }
  bool is_leaving() const { return is_leaving_; }  ///< the second time, behind the children
  int level() const { return level_; }             ///< 0 for the root
  /// False behind the end.
  bool advance();

 private:
  Place const* first_child() const {
    bool const is_branch = at_->kind == Kind::element || at_->kind == Kind::document;
    return is_branch ? static_cast<Branch const*>(at_)->first : nullptr;
  }

  Place const* root_;
  Place const* at_;
  int level_ = 0;
  bool is_leaving_ = false;
};

}  // namespace sivane::dom
