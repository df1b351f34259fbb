// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/tree.h>

#include <utility>

namespace sivane::dom {

void append(Branch& parent, Place& child) {
  child.parent = &parent;
  child.previous = std::exchange(parent.last, &child);
  (child.previous != nullptr ? child.previous->next : parent.first) = &child;
}

void remove(Place& child) {
  if (child.parent == nullptr) return;
  (child.previous != nullptr ? child.previous->next : child.parent->first) = child.next;
  (child.next != nullptr ? child.next->previous : child.parent->last) = child.previous;
  child.parent = nullptr;
  child.previous = child.next = nullptr;
}

/// Climbs from `inner`, unless there is nothing below `outer`: a chain that grows at its end is not climbed
/// each time.
bool stands_within(Branch const& inner, Branch const& outer) {
  if (outer.first == nullptr) return &inner == &outer;
  Branch const* at = &inner;
  while (at != nullptr && at != &outer) at = at->parent;
  return at != nullptr;
}

bool Walk::advance() {
  if (Place const* const child = is_leaving_ ? nullptr : first_child()) {
    at_ = child;
    ++level_;
    return true;
  }
  if (at_ == root_) return false;
  is_leaving_ = at_->next == nullptr;
  at_ = is_leaving_ ? at_->parent : at_->next;
  if (is_leaving_) --level_;
  return true;
}

}  // namespace sivane::dom
