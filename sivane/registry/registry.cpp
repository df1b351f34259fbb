// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/registry/registry.h>
#include <sivane/registry/tables.h>

#include <atomic>

namespace sivane {

namespace {

/// All that `init` changes. The rows are constants, so that no order between it and them has to be kept.
constinit std::atomic<bool> is_open = false;

/// The last of the ids that is `id`. Multiplies where std::upper_bound branches, since half of those branches
/// would be predicted wrongly.
template <class Id>
Id const* find_last(std::span<Id const> ascending, std::uint32_t id) {
  Id const* at = ascending.data();
  for (std::size_t count = ascending.size(); count > 1;) {
    std::size_t const half = count / 2;
    at += static_cast<std::size_t>(at[half] <= id) * half;
    count -= half;
  }
  return !ascending.empty() && *at == id ? at : nullptr;
}

template <class Id>
char const* find_name(registry::Table<Id> const& table, int id) {
  constexpr char const* unknown = "<unknown>";
  if (!is_open.load(std::memory_order_relaxed)) return unknown;
  auto const number = static_cast<std::uint32_t>(id);
  Id const* found = find_last(table.ids.subspan(table.head), number);
  if (found == nullptr) found = find_last(table.ids.first(table.head), number);
  return found != nullptr ? table.name(static_cast<std::size_t>(found - table.ids.data())) : unknown;
}

}  // namespace

void init() noexcept { is_open.store(true, std::memory_order_relaxed); }

char const* get_network_id(int id) noexcept { return find_name(registry::network(), id); }
char const* get_ca_system_id(int id) noexcept { return find_name(registry::ca_system(), id); }
char const* get_mhp_id(int id) noexcept { return find_name(registry::mhp(), id); }
char const* get_private_data_id(int id) noexcept { return find_name(registry::private_data(), id); }
char const* get_data_broadcast_id(int id) noexcept { return find_name(registry::data_broadcast(), id); }
char const* get_original_network_id(int id) noexcept { return find_name(registry::original_network(), id); }
char const* get_bouquet_id(int id) noexcept { return find_name(registry::bouquet(), id); }

}  // namespace sivane
