// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Broadcasts that are not part of the repository: looked for beside it.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "run_inspect.h"

namespace sivane::testing {

namespace {

namespace fs = std::filesystem;

fs::path const folder = SIVANE_REAL_STREAMS;

/// How many sections of each class a dump shows; "error" counts those that failed.
std::map<std::string, int> classes_of(std::string const& dump) {
  std::map<std::string, int> counts;
  std::istringstream lines(dump);
  bool is_title = false;
  for (std::string line; std::getline(lines, line);) {
    if (is_title && line.rfind("error ", 0) == 0) ++counts["error"];
    is_title = line.rfind("== ", 0) == 0;
    if (is_title) ++counts[line.substr(line.rfind(' ') + 1)];
  }
  return counts;
}

}  // namespace

TEST(InspectRealStreams, EverySectionParses) {
  if (!fs::is_directory(folder)) GTEST_SKIP() << "no streams beside the repository";
  std::map<std::string, std::map<std::string, int>> const streams = {
      {"satellite-it.ts",
       {{"Ait", 6}, {"Nit", 2}, {"Pat", 9}, {"Pmt", 34}, {"Sdt", 2}, {"Tdt", 4}, {"Tot", 3}}},
      {"terrestrial-at.ts", {{"Eit", 24}, {"Pat", 1}}},
      {"terrestrial-fr.ts", {{"Ait", 1}, {"DsmCC", 2}, {"Pat", 32}, {"Pmt", 15}}},
      {"terrestrial-tw.ts", {{"Eit", 459}, {"Nit", 19}, {"Pat", 322}, {"Pmt", 116}, {"Sdt", 19}}}};
  for (auto const& [name, classes] : streams) {
    Outcome const run = inspect("dump '" + (folder / name).string() + "'");
    EXPECT_EQ(run.status, 0) << name << run.err;
    EXPECT_EQ(classes_of(run.out), classes) << name;
  }
}

}  // namespace sivane::testing
