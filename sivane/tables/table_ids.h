// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

namespace sivane {

/// Table ids, 8 bits each, that a table class takes and names alike; the rows of table_rows.inc list them.
struct TableIds {
  int first;                   ///< the lowest
  int last;                    ///< itself included
  char const* text = nullptr;  ///< none: the text of the class's other ids
};

}  // namespace sivane
