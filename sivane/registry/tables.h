// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the rows of the registries. make_tables.cpp writes the functions' definitions when the library is
// built.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace sivane::registry {

/// One registry, a row for each id, in the order of its list. `Id` is as wide as the registered numbers.
/// Returned by value, since a constant of this type would have to be relocated when the library is loaded.
template <class Id>
struct Table {
  /// Two ascending parts, the first mostly empty. Within a part equal ids are side by side.
  std::span<Id const> ids;
  /// Where the name of each row begins in `texts`.
  std::span<std::uint16_t const> names;
  /// The rows of the first part.
  std::size_t head;
  /// Each name once, with a zero byte after it; all registries share them.
  char const* texts;

  char const* name(std::size_t row) const { return texts + names[row]; }
};

Table<std::uint16_t> network();
Table<std::uint16_t> ca_system();
Table<std::uint16_t> mhp();
Table<std::uint32_t> private_data();
Table<std::uint16_t> data_broadcast();
Table<std::uint16_t> original_network();
Table<std::uint16_t> bouquet();

}  // namespace sivane::registry
