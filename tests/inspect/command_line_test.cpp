// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include "run_inspect.h"

namespace sivane::testing {

TEST(InspectCommandLine, HelpIsNoFault) {
  for (char const* const arguments : {"--help", "-h", "dump --help", "sections -h", "--version"}) {
    Outcome const run = inspect(arguments);
    EXPECT_NE(run.out.find("sivane-inspect"), std::string::npos) << arguments;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.status, 0);
  }
}

TEST(InspectCommandLine, WrongUsageIsOneLineAndStatusTwo) {
  char const* const wrong[] = {
      "",
      "nosuch @",
      "dump",
      "dump @ second",
      "dump --nosuch @",
      "dump --input",
      "dump --input nosuch @",
      "dump --input TS @",
      "dump --input sections --handle 0:0 @",
      "dump @ --handle",
      "dump --handle 0 @",
      "dump --handle :0 @",
      "dump --handle 0: @",
      "dump --handle 0:0:0 @",
      "dump --handle 0x2000:0 @",
      "dump --handle 8192:0 @",
      "dump --handle 0:256 @",
      "dump --handle 0:0400 @",
      "dump --handle 08:0 @",
      "dump --handle 0x:0 @",
      "dump --handle -1:0 @",
      "dump --handle +1:0 @",
      "dump --handle ' 1:0' @",
      "dump --handle 4294967296:0 @",
      "dump --handle 1:0 --handle x @",
  };
  for (char const* const arguments : wrong) {
    Outcome const run = inspect(arguments);
    EXPECT_EQ(run.out, "") << arguments;
    EXPECT_EQ(line_count(run.err), 1) << arguments << '\n' << run.err;
    EXPECT_EQ(run.status, 2) << arguments;
  }
}

TEST(InspectCommandLine, TakesEveryPidAndTableId) {
  for (char const* const pair : {"0:0", "0x1FFF:0xFF", "8191:255", "017777:0377", "0X1f:0Xf"}) {
    Outcome const run = inspect("sections --handle " + std::string(pair) + " @");
    EXPECT_EQ(run.status, 0) << pair << run.err;
  }
}

TEST(InspectCommandLine, UnreadableInputIsOneLineAndStatusTwo) {
  for (char const* const kind : {"ts", "sections"}) {
    for (char const* const file : {"@.absent", "/", "''"}) {
      Outcome const run = inspect("dump --input " + std::string(kind) + " " + file);
      EXPECT_EQ(run.out, "");
      EXPECT_EQ(line_count(run.err), 1) << run.err;
      EXPECT_EQ(run.status, 2) << kind << ' ' << file;
    }
  }
}

TEST(InspectCommandLine, SaysWhenItsOutputIsLost) {
  Outcome const run = inspect("sections --input sections - >/dev/full", std::string("700000\n"));
  EXPECT_EQ(run.status, 2);
}

}  // namespace sivane::testing
