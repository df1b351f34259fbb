// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "tables/table_classes.h"

#include <sivane/sivane.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace inspect {

namespace {

TableClass row(std::string_view name, std::initializer_list<sivane::TableIds> ids) {
  std::vector<int> table_ids;
  for (sivane::TableIds const& of : ids) {
    for (int id = of.first; id <= of.last; ++id) table_ids.push_back(id);
  }
  return {name, std::move(table_ids)};
}

}  // namespace

std::span<TableClass const> table_classes() {
  static std::vector<TableClass> const rows = {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) row(#Class, {__VA_ARGS__}),
#include <sivane/tables/table_rows.inc>
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
