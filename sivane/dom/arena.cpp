// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/arena.h>

#include <algorithm>

namespace sivane::dom {

/// What would take much of a block gets one of its own, and the other stays in use.
void* Arena::allocate_elsewhere(std::size_t size) {
  bool const is_large = size > block_size_ / 4;
  std::size_t const taken = is_large ? size : block_size_;
  blocks_.push_back(nullptr);
  try {
    blocks_.back().reset(new std::byte[taken]);
  } catch (...) {
    blocks_.pop_back();
    throw;
  }
  std::byte* const block = blocks_.back().get();
  if (is_large) return block;
  next_ = block + size;
  left_ = block_size_ - size;
  block_size_ = std::min(2 * block_size_, last_block);
  return block;
}

}  // namespace sivane::dom
