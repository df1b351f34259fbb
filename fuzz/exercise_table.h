// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/error.h>
#include <sivane/tables/ait.h>

#include <cstddef>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "input.h"

namespace sivane::fuzzing {

template <class Table>
std::string dump_of(Table const& table) {
  std::ostringstream text;
  table.dump_state(text);
  return text.str();
}

/// Long-form tables have `reset`, short-form ones only what it calls.
template <class Table>
void empty(Table& table) {
  if constexpr (requires { table.reset(); }) {
    table.reset();
    check(!table.valid, "a table that was reset is not valid");
  } else {
    table._reset();
  }
}

/// `reset` leaves common descriptors of an AIT, and its dump prints them.
template <class Table>
inline constexpr bool dumps_what_reset_leaves = std::is_same_v<Table, Ait>;

/// Takes one object of a table class through its life. The first `Parse` may throw an `error`; when it has
/// not, nothing behind it may.
template <class Table>
void exercise_table(unsigned char const* section, std::size_t available) {
  Table table;
  try {
    table.Parse(section, available);
  } catch (error const& failure) {
    check(failure.what() != nullptr, "what() is never null");
    return;
  }
  check(table.valid, "a parsed table is valid");
  check(static_cast<std::size_t>(table.section_length) + 3 <= available, "a parsed section is whole");
  std::string const text = dump_of(table);
  Table copy = table;
  Table const moved = std::move(table);
  check(dump_of(copy) == text, "a copy dumps like its original");
  check(dump_of(moved) == text, "a table dumps the same after a move");
  copy.Parse(section, available);
  empty(copy);
  copy.Parse(section, available);
  if (dumps_what_reset_leaves<Table>) return;
  check(dump_of(copy) == text, "an emptied table parses like a new one");
}

}  // namespace sivane::fuzzing
