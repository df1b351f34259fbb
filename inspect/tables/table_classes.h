// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "input/section.h"
#include "tables/table.h"

namespace inspect {

/// One class of the library that reads sections.
struct TableClass {
  std::string_view name;
  std::vector<int> table_ids;  ///< those that it reads
};

std::span<TableClass const> table_classes();

/// The class that a section names, or that its table id has; null where there is none.
TableClass const* class_of(Section const& section);
/// Null where no class has this table id, or this name.
TableClass const* find_class(int table_id);
TableClass const* find_class(std::string_view name);

}  // namespace inspect
