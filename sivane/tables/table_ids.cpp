// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// `get_table_id_text` and `is_valid_tablesid` of every table class.
#include <sivane/tables/ait.h>
#include <sivane/tables/bat.h>
#include <sivane/tables/cat.h>
#include <sivane/tables/dsm_cc.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/nit.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>
#include <sivane/tables/rst.h>
#include <sivane/tables/sdt.h>
#include <sivane/tables/table_ids.h>
#include <sivane/tables/tdt.h>
#include <sivane/tables/tot.h>

#include <initializer_list>
#include <type_traits>

namespace sivane {

static TableIds const* find(std::initializer_list<TableIds> const& ids, int table_id) {
  for (TableIds const& of : ids) {
    if (table_id >= of.first && table_id <= of.last) return &of;
  }
  return nullptr;
}

static char const* text_of(std::initializer_list<TableIds> const& ids, int table_id, char const* other_text) {
  TableIds const* const found = find(ids, table_id);
  return found != nullptr && found->text != nullptr ? found->text : other_text;
}

#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...)                                                 \
  static_assert(std::is_base_of_v<Frame, Class>);                                                       \
  char const* Class::get_table_id_text() const { return text_of({__VA_ARGS__}, table_id, other_text); } \
  bool Class::is_valid_tablesid() const { return find({__VA_ARGS__}, table_id) != nullptr; }
#define SIVANE_ANY_ID_TABLE_ROW(Class, Frame, text, ...)        \
  static_assert(std::is_base_of_v<Frame, Class>);               \
  char const* Class::get_table_id_text() const { return text; } \
  bool Class::is_valid_tablesid() const { return true; }
#include <sivane/tables/table_rows.inc>

}  // namespace sivane
