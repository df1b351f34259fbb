// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Replaces `operator new` of the program that this is linked into.
#include "count.h"

#include <cstdlib>
#include <new>

namespace {

// Of the calling thread, so that threads of a benchmark do not wait for each other.
thread_local std::size_t count = 0;
thread_local std::size_t bytes = 0;
thread_local std::size_t live = 0;
thread_local int granted = -1;

void release(void* memory) {
  if (memory != nullptr) --live;
  std::free(memory);
}

}  // namespace

std::size_t sivane::testing::allocations() { return count; }
std::size_t sivane::testing::requested_bytes() { return bytes; }
std::size_t sivane::testing::live_blocks() { return live; }
void sivane::testing::grant(int requests) { granted = requests; }

// Not inlined, or the compiler sees a free() of what an operator new has given.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++count;
  if (granted == 0) throw std::bad_alloc();
  if (granted > 0) --granted;
  void* const memory = std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  bytes += size;
  ++live;
  return memory;
}
[[gnu::noinline]] void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
  try {
    return operator new(size);
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}
// Arrays too: under the address sanitizer they do not come through the operator above.
[[gnu::noinline]] void* operator new[](std::size_t size) { return operator new(size); }
[[gnu::noinline]] void operator delete(void* memory) noexcept { release(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { release(memory); }
[[gnu::noinline]] void operator delete[](void* memory) noexcept { release(memory); }
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept { release(memory); }
