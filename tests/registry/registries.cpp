// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "registries.h"

#include <sivane/registry/registry.h>
#include <sivane/registry/tables.h>

namespace sivane::testing {
namespace {

template <class Id>
Registry make(char const* name, char const* (*look_up)(int), registry::Table<Id> const& table) {
  Registry made{name, look_up, {}};
  for (std::size_t row = 0; row < table.ids.size(); ++row) {
    made.rows.emplace_back(table.ids[row], table.name(row));
  }
  return made;
}

}  // namespace

std::vector<Registry> const& registries() {
  static std::vector<Registry> const all{
      make("network", get_network_id, registry::network()),
      make("ca_system", get_ca_system_id, registry::ca_system()),
      make("mhp", get_mhp_id, registry::mhp()),
      make("private_data", get_private_data_id, registry::private_data()),
      make("data_broadcast", get_data_broadcast_id, registry::data_broadcast()),
      make("original_network", get_original_network_id, registry::original_network()),
      make("bouquet", get_bouquet_id, registry::bouquet()),
  };
  return all;
}

}  // namespace sivane::testing
