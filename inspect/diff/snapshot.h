// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "diff/table_key.h"

namespace inspect {

/// The sections of one version of a table, each as the text of an object.
struct TableVersion {
  int version = -1;
  int last_section = 0;
  std::map<int, std::string> sections;  ///< by number

  bool is_complete() const;
};

/// The tables of an input as they stood at its end: of each the version that was whole last, or else what
/// came of it.
class Snapshot {
 public:
  void take(int pid, std::string_view class_name, std::string_view table);

  struct Versions {
    TableVersion whole, latest;
    TableVersion const& shown() const { return whole.sections.empty() ? latest : whole; }
  };
  std::map<TableKey, Versions> const& tables() const { return tables_; }

 private:
  std::map<TableKey, Versions> tables_;
};

}  // namespace inspect
