// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Replaces `operator new` of the program that this is linked into.
#include "count.h"

#include <cstdlib>
#include <new>

namespace {
std::size_t count = 0;
}  // namespace

std::size_t sivane::testing::allocations() { return count; }

// Not inlined, or the compiler sees a free() of what an operator new has given.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++count;
  if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
