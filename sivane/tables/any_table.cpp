// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/tables/any_table.h>
#include <sivane/tables/table_ids.h>

#include <initializer_list>
#include <type_traits>

namespace sivane {

static bool has(std::initializer_list<TableIds> const& ids, int table_id) {
  for (TableIds const& of : ids) {
    if (table_id >= of.first && table_id <= of.last) return true;
  }
  return false;
}

AnyTable make_table(int table_id) {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) \
  if (has({__VA_ARGS__}, table_id)) return Class();
#include <sivane/tables/table_rows.inc>
  return {};
}

AnyTable make_table(std::string_view class_name) {
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) \
  if (class_name == #Class) return Class();
#include <sivane/tables/table_rows.inc>
  return {};
}

std::string_view class_name(AnyTable const& table) {
  constexpr std::string_view names[] = {
      "",
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) #Class,
#include <sivane/tables/table_rows.inc>
  };
  return names[table.index()];
}

AnyTable parse_table(unsigned char const* section, std::size_t available) {
  ParseOptions strict;
  strict.tolerant = false;
  return parse_table(section, available, strict);
}

AnyTable parse_table(unsigned char const* section, std::size_t available, ParseOptions& options) {
  AnyTable table = available > 0 ? make_table(section[0]) : AnyTable();
  std::visit(
      [&](auto& of_class) {
        if constexpr (!std::is_same_v<decltype(of_class), std::monostate&>) {
          of_class.Parse(section, available, options);
        }
      },
      table);
  return table;
}

}  // namespace sivane
