// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Broadcasts that are not part of the repository: looked for beside it.
#include <gtest/gtest.h>

#include <filesystem>

#include "run_inspect.h"

namespace sivane::testing {

namespace {

namespace fs = std::filesystem;

fs::path const folder = SIVANE_REAL_STREAMS;

Outcome dump_file(fs::path const& file) { return inspect("dump '" + file.string() + "'"); }

}  // namespace

TEST(InspectRealStreams, EveryPatParses) {
  if (!fs::is_directory(folder)) GTEST_SKIP() << "no streams beside the repository";
  int streams = 0;
  for (auto const& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".ts") continue;
    ++streams;
    Outcome const run = dump_file(entry.path());
    EXPECT_EQ(run.status, 0) << entry.path() << run.err;
    EXPECT_EQ(run.out.find("== 1 Pat\ntable_id 00\n"), 0u) << entry.path();
  }
  EXPECT_GT(streams, 0);
}

}  // namespace sivane::testing
