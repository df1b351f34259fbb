// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>

#include "diff/difference.h"
#include "text/json.h"

namespace inspect {

/// A line for each table that differs, and below it one for each difference, with both values side by side.
void print_as_text(Differences const& differences, std::ostream& out, bool is_terminal);

/// One object.
void print_as_json(Differences const& differences, JsonWriter& json);

}  // namespace inspect
