// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace inspect {

/// One class of the library that reads sections.
struct TableClass {
  std::string_view name;
  std::vector<int> table_ids;    ///< those that it reads
  std::optional<int> usual_pid;  ///< where they are found in every stream; none: where other tables say
  /// Parses the section into a fresh object and dumps that. Throws `sivane::error`.
  void (*dump)(std::span<unsigned char const> section, std::ostream& out);
};

std::span<TableClass const> table_classes();

/// Null where no class has this table id, or this name.
TableClass const* find_class(int table_id);
TableClass const* find_class(std::string_view name);

}  // namespace inspect
