// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The case files: blocks with an empty line between, each a title line and further lines. Lines that begin
// with '#' are comments; " | " in lines of dumps and resets stands for the beginning of a new line. Files are
// named from the folder of the tests on.
#pragma once

#include <string>
#include <vector>

namespace sivane::testing {

/// Where a line stands, for messages.
struct Line {
  std::string text;
  int number;
};

struct Block {
  std::string title;
  std::vector<Line> lines;
};

/// Throws where there is no such file.
std::vector<Block> read_blocks(std::string const& file);

/// A "hex" line and the lines up to the next one.
struct Case {
  std::string title;   // the block's
  std::string bytes;   // what stands behind "hex"
  std::string behind;  // of these, those behind a bar
  std::string text;    // the further lines
  std::string file;
  int line;
};

std::vector<Case> read_cases(std::string const& file);

}  // namespace sivane::testing
