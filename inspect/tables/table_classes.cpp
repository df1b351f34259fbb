// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "tables/table_classes.h"

#include <sivane/sivane.h>

#include <algorithm>
#include <numeric>

namespace inspect {

namespace {

template <class Class>
std::unique_ptr<Table> make() {
  return std::make_unique<TableOf<Class>>();
}

std::vector<int> event_table_ids() {
  std::vector<int> ids(0x6F - 0x4E + 1);
  std::iota(ids.begin(), ids.end(), 0x4E);
  return ids;
}

}  // namespace

std::span<TableClass const> table_classes() {
  static std::vector<TableClass> const rows = {
      // name, table ids, usual PID, objects
      {"Pat", {0x00}, 0x0000, make<sivane::Pat>},       {"Cat", {0x01}, 0x0001, make<sivane::Cat>},
      {"Pmt", {0x02}, {}, make<sivane::Pmt>},           {"DsmCC", {0x3B, 0x3C}, {}, make<sivane::DsmCC>},
      {"Nit", {0x40, 0x41}, 0x0010, make<sivane::Nit>}, {"Sdt", {0x42, 0x46}, 0x0011, make<sivane::Sdt>},
      {"Bat", {0x4A}, 0x0011, make<sivane::Bat>},       {"Eit", event_table_ids(), 0x0012, make<sivane::Eit>},
      {"Tdt", {0x70}, 0x0014, make<sivane::Tdt>},       {"Rst", {0x71}, 0x0013, make<sivane::Rst>},
      {"Tot", {0x73}, 0x0014, make<sivane::Tot>},       {"Ait", {0x74}, {}, make<sivane::Ait>},
  };
  return rows;
}

TableClass const* class_of(Section const& section) {
  return section.class_name.empty() ? find_class(section.table_id()) : find_class(section.class_name);
}

TableClass const* find_class(int table_id) {
  for (TableClass const& row : table_classes()) {
    if (std::ranges::find(row.table_ids, table_id) != row.table_ids.end()) return &row;
  }
  return nullptr;
}

TableClass const* find_class(std::string_view name) {
  for (TableClass const& row : table_classes()) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

}  // namespace inspect
