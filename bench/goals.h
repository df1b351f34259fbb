// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What the library wants to reach, as one table.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace sivane::bench {

/// Keeps what the comparisons with a goal gave, and prints them as a table.
class GoalReporter final : public benchmark::BenchmarkReporter {
 public:
  /// Picks the comparisons that have a goal.
  static std::string filter();

  bool ReportContext(Context const&) override { return true; }
  void ReportRuns(std::vector<Run> const& runs) override;
  void Finalize() override;
  bool failed = false;

 private:
  std::map<std::string, Run> runs_;  // by name and argument
};

}  // namespace sivane::bench
