// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diff/json_text.h"

namespace inspect {

/// What makes a table the same wherever its sections were sent.
struct TableKey {
  std::vector<int> ids;  ///< table id, PID where it counts, and the ids that the class has
  std::string label;     ///< for people: "SDT 0x42, stream 7, network 1"

  bool operator<(TableKey const& other) const { return ids < other.ids; }
};

/// Of a table as an object. The PID counts for what several PIDs may carry under the same ids; -1 where it is
/// not known.
TableKey key_of(std::string_view class_name, int pid, JsonValue const& table);

}  // namespace inspect
