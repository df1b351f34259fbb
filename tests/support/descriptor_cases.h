// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "case_file.h"
#include "rows.h"
#include "section_text.h"

namespace sivane::testing {

template <class Set, class Visit>
void visit_descriptors(Step const& step, Visit visit) {
  ::testing::ScopedTrace const trace(step.file.c_str(), step.line, step.title);
  bool const runs_over = step.lines.contains("after");
  HeapBlock const bytes(assemble(step.argument) + (runs_over ? assemble(step.lines.at("after")) : Bytes()));
  Set set;
  file(set, descriptor_in(bytes));
  each_row<Set>([&](auto const& row) {
    for (auto const& descriptor : (set.*row.getter)()) visit(row, descriptor);
  });
}

/// Calls `visit` with each descriptor of the case files and its row in its set.
template <class Visit>
void each_descriptor_of_cases(Visit visit) {
  int visited = 0;
  for (auto const& entry : std::filesystem::directory_iterator(SIVANE_TESTS "/descriptors/cases")) {
    std::string const name = entry.path().filename().string();
    for (Step const& step : read_steps("descriptors/cases/" + name)) {
      if (step.lines.contains("throws")) continue;
      name.starts_with("ait") ? visit_descriptors<AitDescriptorSet>(step, visit)
                              : visit_descriptors<DescriptorSet>(step, visit);
      ++visited;
    }
  }
  EXPECT_GT(visited, 0);
}

}  // namespace sivane::testing
