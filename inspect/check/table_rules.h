// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "check/measures.h"
#include "check/observation.h"

namespace inspect {

/// How often a table comes, and what else may come on its PID.
struct TableRule {
  int first_table, last_table;
  int pid;               ///< -1: where a PAT says
  Measure measure;       ///< that the longest interval belongs to
  bool by_number;        ///< each section by itself, and not any of the table
  bool has_gap;          ///< whether 25 ms lie between its sections
  std::int64_t longest;  ///< in ticks; of schedules see `longest_interval`
};

/// Null where nothing is known about the table on this PID.
TableRule const* rule_of(int pid, int table_id);

/// Which measure a table violates by being on this PID, where it does.
struct Misplacement {
  bool is_misplaced;
  Measure measure;
};
Misplacement misplacement_of(int pid, int table_id);

/// In ticks (ETSI TS 101 211, 4.4); terrestrial networks have more time for other streams and late days.
std::int64_t longest_interval(TableRule const& rule, int table_id, int number, bool is_terrestrial);

}  // namespace inspect
