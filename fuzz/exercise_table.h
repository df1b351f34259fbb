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
#include "saved_document.h"

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

/// Whether the section was taken.
template <class Table>
bool parse(Table& table, unsigned char const* section, std::size_t available) {
  try {
    table.Parse(section, available);
    return true;
  } catch (error const& failure) {
    check(failure.what() != nullptr, "what() is never null");
    check(failure.offset <= static_cast<int>(available), "a failure is in its section");
    return false;
  }
}

/// Copies and moves, onto new objects and onto `used`, which holds something.
template <class Table>
void exercise_values(Table const& table, Table used) {
  std::string const text = dump_of(table);
  Table copy = table;
  check(dump_of(copy) == text, "a copy dumps like its original");
  Table const moved = std::move(copy);
  check(dump_of(moved) == text, "a table dumps the same after a move");
  used = table;
  check(dump_of(used) == text, "an assigned table dumps like its original");
  Table const& itself = used;
  used = itself;
  check(dump_of(used) == text, "a table that is assigned to itself stays as it is");
  copy = std::move(used);  // onto what was moved from
  check(dump_of(copy) == text, "a moved table dumps like its original");
}

/// Takes one object of a table class through its life. Each `Parse` may throw an `error`, the second as the
/// first; nothing else may.
template <class Table>
void exercise_table(unsigned char const* section, std::size_t available) {
  Table table;
  bool const parsed = parse(table, section, available);
  check(table.valid == parsed, "a table is valid when it was parsed");
  if (parsed) {
    check(static_cast<std::size_t>(table.section_length) + 3 <= available, "a parsed section is whole");
  }
  std::string const text = dump_of(table);
  exercise_document(table);
  Table again = table;
  check(parse(again, section, available) == parsed, "a section parses again");
  exercise_values(table, again);
  empty(again);
  check(parse(again, section, available) == parsed, "a section parses again into an emptied table");
  if (dumps_what_reset_leaves<Table>) return;
  check(dump_of(again) == text, "an emptied table parses like a new one");
}

}  // namespace sivane::fuzzing
