// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: how descriptor sets store, find and visit what they hold, and the table of a set's rows.
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/descriptors/descriptor_groups.h>

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace sivane {

class AitDescriptorSet;
class DescriptorSet;

/// What is done with the vector of a row, whose class only the row knows.
struct VectorOperations {
  void (*make)(void* place, std::size_t reserved);
  void (*copy)(void* place, void const* from);
  void (*relocate)(void* place, void* from) noexcept;
  void (*destroy)(void* vector) noexcept;
  std::size_t (*size)(void const* vector);
  DescriptorBase const& (*at)(void const* vector, std::size_t index);
  void (*parse)(void* vector, DescriptorBytes bytes);
  void (*load)(void* vector, void* node);
};

template <class Descriptor>
struct VectorOf {
  using Vector = std::vector<Descriptor>;
  static Vector& of(void* vector) { return *static_cast<Vector*>(vector); }
  static Vector const& of(void const* vector) { return *static_cast<Vector const*>(vector); }

  static void make(void* place, std::size_t reserved) { (new (place) Vector())->reserve(reserved); }
  static void copy(void* place, void const* from) { new (place) Vector(of(from)); }
  static void relocate(void* place, void* from) noexcept {
    new (place) Vector(std::move(of(from)));
    destroy(from);
  }
  static void destroy(void* vector) noexcept { std::destroy_at(&of(vector)); }
  static std::size_t size(void const* vector) { return of(vector).size(); }
  static DescriptorBase const& at(void const* vector, std::size_t index) { return of(vector)[index]; }
  static void parse(void* vector, DescriptorBytes bytes) { of(vector).emplace_back(bytes); }
  static void load(void* vector, void* node) {
    Descriptor descriptor;
    descriptor.Parse(node);
    of(vector).push_back(std::move(descriptor));
  }

  static constexpr VectorOperations operations = {make, copy, relocate, destroy, size, at, parse, load};
};

/// A row of a set: which tag is filed there, and the operations of its vector.
struct DescriptorRow {
  enum Kind : int { user_private = -1, other = -2 };  // in place of a tag, for those that have no class

  bool is_kept_as_bytes() const { return tag < 0; }

  int tag;
  VectorOperations const* operations;
};

/// Slots behind each other, in the order in which their rows were first filled. Of their memory `capacity` is
/// there and `size` in use.
struct DescriptorGroups::Block {
  struct Slot {
    void* vector() { return bytes; }

    int row;
    VectorOperations const* operations;
    alignas(std::vector<char>) std::byte bytes[sizeof(std::vector<char>)];
  };

  Slot* begin() { return reinterpret_cast<Slot*>(this + 1); }
  Slot* end() { return begin() + size; }

  std::size_t size;
  std::size_t capacity;
};

using RowOfTag = std::array<unsigned char, 256>;

struct DescriptorStorage {
  using Block = DescriptorGroups::Block;
  using Slot = Block::Slot;

  /// The vector of a row. Where there is none it is made, with room for `reserved` descriptors.
  static void* vector(DescriptorGroups& groups, DescriptorRow const* rows, int row,
                      std::size_t reserved = 0) {
    Slot* const slot = find(groups, row);
    return slot != nullptr ? slot->vector() : make(groups, *rows[row].operations, row, reserved);
  }

  template <class Descriptor>
  static std::vector<Descriptor> const& items(DescriptorGroups const& groups, int row) {
    static_assert(sizeof(std::vector<Descriptor>) == sizeof(Slot::bytes));
    static std::vector<Descriptor> const none;
    Slot* const slot = find(groups, row);
    return slot != nullptr ? VectorOf<Descriptor>::of(slot->vector()) : none;
  }

  /// Files a descriptor. One that is kept as bytes remembers the specifier.
  static void file(DescriptorGroups& groups, DescriptorRow const* rows, int row, DescriptorBytes descriptor,
                   unsigned int private_data_specifier);

  /// Files the descriptors of a loop. Those of one tag that follow each other get their memory at once.
  static void parse(DescriptorGroups& groups, DescriptorRow const* rows, RowOfTag const& row_of_tag,
                    DescriptorLoop& loop);

  static void erase(DescriptorGroups& groups, int row);

  /// Calls `visit(row, descriptor)` for each, row by row.
  template <class Visit>
  static void each(DescriptorGroups const& groups, Visit visit) {
    for (Slot* slot = next(groups, -1); slot != nullptr; slot = next(groups, slot->row)) {
      std::size_t const size = slot->operations->size(slot->vector());
      for (std::size_t i = 0; i < size; ++i) visit(slot->row, slot->operations->at(slot->vector(), i));
    }
  }

  /// Gives the groups a block of `capacity`, which holds what they have.
  static void reserve(DescriptorGroups& groups, std::size_t capacity);

 private:
  static Slot* find(DescriptorGroups const& groups, int row) {
    if (groups.block_ == nullptr) return nullptr;
    for (Slot& slot : *groups.block_) {
      if (slot.row == row) return &slot;
    }
    return nullptr;
  }

  /// Tells the last `count` descriptors of a vector whose specifier was in force.
  static void remember(void* filed, std::size_t count, unsigned int private_data_specifier);
  /// The slot of the lowest row above `row`.
  static Slot* next(DescriptorGroups const& groups, int row);
  static void* make(DescriptorGroups& groups, VectorOperations const& operations, int row,
                    std::size_t reserved);
};

/// The rows of a set. They are made in the set's own source alone: what each costs the compiler is paid once.
template <class Set>
DescriptorRow const* rows_of();
template <>
DescriptorRow const* rows_of<DescriptorSet>();
template <>
DescriptorRow const* rows_of<AitDescriptorSet>();

/// The row of each tag: its own; without one, `user_private` from 0x80 on and `other` below.
template <std::size_t count>
constexpr RowOfTag rows_of_tags(DescriptorRow const (&rows)[count]) {
  auto const row_of = [&rows](int tag) {
    int const kind = tag < 0x80 ? DescriptorRow::other : DescriptorRow::user_private;
    std::size_t without_class = 0;
    for (std::size_t row = 0; row < count; ++row) {
      if (rows[row].tag == tag) return row;
      if (rows[row].tag == kind) without_class = row;
    }
    return without_class;
  };
  RowOfTag rows_by_tag{};
  for (int tag = 0; tag < 256; ++tag) {
    rows_by_tag[static_cast<std::size_t>(tag)] = static_cast<unsigned char>(row_of(tag));
  }
  return rows_by_tag;
}

}  // namespace sivane
