// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <vector>

namespace inspect {

/// One thing that two inputs do not have in common.
struct Difference {
  std::string table;              ///< as `TableKey::label`
  std::vector<std::string> path;  ///< from the table down; empty for the table itself
  std::string a, b;               ///< the values as JSON; empty where there is none

  char const* change() const { return a.empty() ? "added" : b.empty() ? "removed" : "changed"; }
};

struct Differences {
  std::vector<Difference> found;
  std::vector<std::string> partly_compared;  ///< tables that are not whole in one of the inputs
};

}  // namespace inspect
