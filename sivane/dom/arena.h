// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: memory that is given back all at once.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace sivane::dom {

class Arena {
 public:
  Arena() = default;
  Arena(Arena const&) = delete;
  Arena& operator=(Arena const&) = delete;

  /// What it makes has no destructor to be called. Exhausted memory is std::bad_alloc, and changes nothing.
  template <class Object, class... Arguments>
  Object* make(Arguments&&... arguments) {
    static_assert(std::is_trivially_destructible_v<Object> && alignof(Object) <= alignment);
    return new (allocate(sizeof(Object))) Object(std::forward<Arguments>(arguments)...);
  }

  /// Room for that many characters.
  char* text(std::size_t size) { return static_cast<char*>(allocate(size)); }
  std::string_view keep(std::string_view text) {
    char* const copy = this->text(text.size());
    text.copy(copy, text.size());
    return {copy, text.size()};
  }

 private:
  static constexpr std::size_t alignment = alignof(void*);
  static constexpr std::size_t first_block = 1 << 12;  // a tree may be one small table
  static constexpr std::size_t last_block = 1 << 16;

  void* allocate(std::size_t size) {
    size = (size + alignment - 1) / alignment * alignment;
    if (size > left_) return allocate_elsewhere(size);
    left_ -= size;
    return std::exchange(next_, next_ + size);
  }
  void* allocate_elsewhere(std::size_t size);

  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  std::byte* next_ = nullptr;
  std::size_t left_ = 0;  // from next_ on
  std::size_t block_size_ = first_block;
};

}  // namespace sivane::dom
