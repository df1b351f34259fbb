// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "table_classes.h"

#include <sivane/sivane.h>

#include <algorithm>

namespace inspect {

namespace {

/// Both frames, long and short, offer the same operations under one name without a common base class.
template <class Table>
void dump(std::span<unsigned char const> section, std::ostream& out) {
  Table table;
  table.Parse(section.data(), section.size());
  table.dump_state(out);
}

}  // namespace

std::span<TableClass const> table_classes() {
  static std::vector<TableClass> const rows = {
      // name, table ids, usual PID, operations
      {"Pat", {0x00}, 0x0000, dump<sivane::Pat>},
  };
  return rows;
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
