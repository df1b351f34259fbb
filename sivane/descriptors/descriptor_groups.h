// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <utility>

namespace sivane {

/// What a descriptor set is stored in: one block with a vector for each of its rows that holds something.
/// Empty it is one null pointer, and copying it then costs nothing.
class SIVANE_API DescriptorGroups {
 public:
  DescriptorGroups() noexcept = default;
  /// Copies every descriptor.
  DescriptorGroups(DescriptorGroups const& other) : DescriptorGroups() { copy(other); }
  /// Leaves `other` empty.
  DescriptorGroups(DescriptorGroups&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
  /// Copies every descriptor; where memory runs out nothing has changed.
  DescriptorGroups& operator=(DescriptorGroups const& other) { return *this = DescriptorGroups(other); }
  /// Leaves `other` empty.
  DescriptorGroups& operator=(DescriptorGroups&& other) noexcept {
    DescriptorGroups taken(std::move(other));
    std::swap(block_, taken.block_);
    return *this;
  }
  ~DescriptorGroups() {
    if (block_ != nullptr) release();
  }

 private:
  struct SIVANE_LOCAL Block;
  friend struct DescriptorStorage;  // what is done with groups

  void copy(DescriptorGroups const& other);
  void release() noexcept;

  Block* block_ = nullptr;
};

}  // namespace sivane
