// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Counts every call of `operator new` of the program, those of the library included.
#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {
std::size_t count = 0;
}

std::size_t sivane::bench::allocations() { return count; }

void* operator new(std::size_t size) {
  ++count;
  if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
