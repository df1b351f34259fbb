// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstddef>

namespace sivane::testing {

/// How often this program has asked for memory so far, the library's own requests included.
std::size_t allocations();
/// How many bytes it has asked for so far.
std::size_t requested_bytes();
/// How many blocks it holds now.
std::size_t live_blocks();
/// From now on the first `count` requests are granted and every later one fails; -1 grants all.
void grant(int count);

template <class Action>
std::size_t allocations_of(Action action) {
  std::size_t const before = allocations();
  action();
  return allocations() - before;
}

}  // namespace sivane::testing
