// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <vector>

#include "diff/json_text.h"

namespace inspect {

/// An item of one list and the one of another that it became; null where there is none.
struct Pair {
  std::string label;  ///< what the item is called: "service 101", "short_event_descriptor eng"
  JsonValue const* a;
  JsonValue const* b;
};

/// Items find each other by what identifies them, among the same by being equal, and at last by their order.
/// `list` is the name of the member that is the list.
std::vector<Pair> pairs_of(std::string_view list, JsonValue const& a, JsonValue const& b);

}  // namespace inspect
