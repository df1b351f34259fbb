// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstddef>

namespace sivane::testing {

/// How often this program has asked for memory so far, the library's own requests included.
std::size_t allocations();

template <class Action>
std::size_t allocations_of(Action action) {
  std::size_t const before = allocations();
  action();
  return allocations() - before;
}

}  // namespace sivane::testing
