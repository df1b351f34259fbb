// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what things take of the heap, in bytes, as glibc hands them out: 8 more than asked for, in units
// of 16.
#pragma once

#include <sivane/catalogue/event.h>
#include <sivane/catalogue/network.h>
#include <sivane/catalogue/program.h>
#include <sivane/catalogue/service.h>

#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace sivane::catalogue {

constexpr std::size_t allocation(std::size_t size) {
  constexpr std::size_t least = 32, unit = 16, head = 8;
  return size == 0 ? 0 : std::max(least, (size + head + unit - 1) / unit * unit);
}

inline std::size_t footprint(int) { return 0; }

inline std::size_t footprint(std::string const& text) {
  static std::size_t const inside = std::string().capacity();
  return text.capacity() > inside ? allocation(text.capacity() + 1) : 0;
}

template <class Item>
std::size_t footprint(std::vector<Item> const& items);

template <class Item>
std::size_t footprint(std::optional<Item> const& item);

template <class Item, class = decltype(std::declval<Item const&>().tied())>
std::size_t footprint(Item const& item) {
  auto const of_member = [](auto const& member) -> std::size_t {
    using Member = std::decay_t<decltype(member)>;
    if constexpr (std::is_trivially_copyable_v<Member>) {
      return 0;
    } else {
      return footprint(member);
    }
  };
  return std::apply([&](auto const&... members) { return (std::size_t{0} + ... + of_member(members)); },
                    item.tied());
}

template <class Item>
std::size_t footprint(std::optional<Item> const& item) {
  return item ? footprint(*item) : 0;
}

template <class Item>
std::size_t footprint(std::vector<Item> const& items) {
  std::size_t size = allocation(items.capacity() * sizeof(Item));
  if constexpr (!std::is_trivially_copyable_v<Item>) {
    for (Item const& item : items) size += footprint(item);
  }
  return size;
}

/// Of the node of a map or set that holds an `Entry`.
template <class Entry>
constexpr std::size_t node_footprint() {
  constexpr std::size_t links = 4 * sizeof(void*);
  return allocation(links + sizeof(Entry));
}

/// Of an entry of a map, its node included.
template <class Key, class Value>
std::size_t entry_footprint(Value const& value) {
  return node_footprint<std::pair<Key const, Value>>() + footprint(value);
}

}  // namespace sivane::catalogue
