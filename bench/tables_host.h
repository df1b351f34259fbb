// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/sivane.h>

#include "streams.h"

namespace sivane::bench {

/// Is given every section of `tables_stream`; what becomes of one is the derived class's.
class TablesHost : public DemuxPush {
 public:
  TablesHost() {
    add_psi_handler(pat_pid, 0x00);
    add_psi_handler(nit_pid, 0x40);
    add_psi_handler(sdt_pid, 0x42);
    add_psi_handler(eit_pid, 0x4E);
    add_psi_handler(eit_pid, 0x50);
    for (int i = 0; i < services; ++i) add_psi_handler(first_pmt_pid + i, 0x02);
  }
  void push(testing::Bytes const& stream) { push_data(stream.data(), static_cast<int>(stream.size())); }
};

/// Calls `use` with the table that `parse`, given an empty one, makes of it.
template <class Parse, class Use>
void with_table(int table_id, Parse parse, Use use) {
  auto const parsed = [parse](auto table) {
    parse(table);
    return table;
  };
  if (table_id == 0x00) return use(parsed(Pat()));
  if (table_id == 0x02) return use(parsed(Pmt()));
  if (table_id == 0x40) return use(parsed(Nit()));
  if (table_id == 0x42) return use(parsed(Sdt()));
  use(parsed(Eit()));
}

/// Calls `use` with the table that the section is parsed into.
template <class Use>
void with_table(int table_id, unsigned char const* section, Use use) {
  with_table(
      table_id, [section](auto& table) { table.Parse(section); }, use);
}

}  // namespace sivane::bench
