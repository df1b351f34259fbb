// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "tables/table_classes.h"

#include <sivane/sivane.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <utility>

namespace inspect {

namespace {

std::optional<int> usual_pid(std::string_view name) {
  static std::map<std::string_view, int> const pids = {{"Pat", 0x0000}, {"Cat", 0x0001}, {"Nit", 0x0010},
                                                       {"Sdt", 0x0011}, {"Bat", 0x0011}, {"Eit", 0x0012},
                                                       {"Rst", 0x0013}, {"Tdt", 0x0014}, {"Tot", 0x0014}};
  auto const found = pids.find(name);
  return found == pids.end() ? std::optional<int>() : found->second;
}

TableClass row(std::string_view name, std::initializer_list<sivane::TableIds> ids) {
  std::vector<int> table_ids;
  for (sivane::TableIds const& of : ids) {
    for (int id = of.first; id <= of.last; ++id) table_ids.push_back(id);
  }
  return {name, std::move(table_ids), usual_pid(name)};
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
