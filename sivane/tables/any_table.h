// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/parse_options.h>
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
#include <sivane/tables/tdt.h>
#include <sivane/tables/tot.h>

#include <cstddef>
#include <string_view>
#include <variant>

namespace sivane {

/// A table of whichever class, or none: what a host keeps that takes all. `std::visit` calls the same
/// operations of each, `std::get_if<Sdt>` asks for one.
using AnyTable = std::variant<std::monostate
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) , Class
#include <sivane/tables/table_rows.inc>
                              >;

/// A fresh object of the class that streams have under this table id, 8 bits; none where no class has it.
SIVANE_API AnyTable make_table(int table_id);
/// A fresh object of the class of this name, "Sdt" say; none where there is no such class.
SIVANE_API AnyTable make_table(std::string_view class_name);
/// The name of a table's class; empty for none.
SIVANE_API std::string_view class_name(AnyTable const& table);

/// Reads the section at `section` into the class that its table id has; none where no class has it, or no
/// byte is `available`. Throws what the `Parse` of the class throws.
SIVANE_API AnyTable parse_table(unsigned char const* section, std::size_t available);
/// The same with a choice of what is built.
SIVANE_API AnyTable parse_table(unsigned char const* section, std::size_t available, ParseOptions& options);

/// Tells the visitor what the table holds; nothing of none.
SIVANE_API void visit_table(AnyTable const& table, FieldVisitor& visitor);

}  // namespace sivane
