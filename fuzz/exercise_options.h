// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/parse_options.h>

#include <cstddef>

#include "exercise_table.h"

namespace sivane::fuzzing {

/// Whether the section was taken with these options.
template <class Table>
bool parse(Table& table, unsigned char const* section, std::size_t available, ParseOptions& options) {
  try {
    table.Parse(section, available, options);
  } catch (error const&) {
    return false;
  }
  for (ParseProblem const& problem : options.problems) {
    check(problem.offset <= static_cast<int>(available), "a problem is in its section");
    check(problem.tag < 256, "a problem's tag has 8 bits");
  }
  check(options.tolerant || options.problems.empty(), "only a tolerant parse lists problems");
  return true;
}

/// With every tag an option changes nothing of a section that is taken without.
template <class Table>
void exercise_every_tag(unsigned char const* section, std::size_t available, bool tolerant) {
  Table plain, table;
  ParseOptions options;
  options.tolerant = tolerant;
  bool const is_faultless = parse(plain, section, available);
  bool const is_taken = parse(table, section, available, options);
  check(options.skipped == 0, "nobody asked for tags to be left out");
  if (!is_faultless) {
    check(!is_taken || !options.problems.empty(), "a section with a fault is refused, or the fault listed");
    return exercise_document(table);
  }
  check(is_taken && options.problems.empty(), "a section without a fault has no problem");
  check(dump_of(table) == dump_of(plain), "and gives the same table");
}

/// The last bytes choose the tags that are left out.
template <class Table>
void exercise_some_tags(unsigned char const* section, std::size_t available, bool tolerant) {
  if (available < 2) return;
  unsigned int const tag = section[available - 1], mask = section[available - 2];
  ParseOptions options;
  options.tolerant = tolerant;
  for (unsigned int other = 0; other < 256; ++other) options.tags[other] = ((other ^ tag) & mask) != 0;
  Table table;
  if (!parse(table, section, available, options)) return;
  exercise_document(table);
}

/// One section under every kind of options.
template <class Table>
void exercise_options(unsigned char const* section, std::size_t available) {
  for (bool const tolerant : {false, true}) {
    exercise_every_tag<Table>(section, available, tolerant);
    exercise_some_tags<Table>(section, available, tolerant);
  }
}

}  // namespace sivane::fuzzing
