// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The case files: blocks with an empty line between, each a title line and further lines. Lines that begin
// with '#' are comments. Files are named from the folder of the tests on.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
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

/// Lines by their keyword, each line with its end.
using KeyedLines = std::map<std::string, std::string>;

/// Something done in a case of tables or descriptors, and what is expected of it; README.md tells the
/// notation.
struct Step {
  std::string title;     // the block's
  std::string action;    // "hex", "more", "reset" or "over"
  std::string argument;  // what the action is done with
  KeyedLines lines;      // the other lines up to the next action
  std::string file;
  int line = 0;
};

/// Every step of a file. Throws where there is none.
std::vector<Step> read_steps(std::string const& file);

/// Empty where everything is as the step's lines say; otherwise where the step stands, and the lines as they
/// would have to be.
std::string difference(Step const& step, KeyedLines const& outcome);

/// Text with control and high bytes and backslashes as a backslash and two digits.
std::string printable(std::string_view raw);
/// The lines of a dump, printable. A backslash at the end stands for a line that was not ended, and of blanks
/// at the end the last is written as a byte.
std::string printable_lines(std::string const& dump);
/// What has a text for each value, as lines: runs of values with the same text, and "else" with that of
/// `last` for all others. Values are hexadecimal.
std::string text_runs(int first, int last, std::function<std::string(int)> const& text_of);

}  // namespace sivane::testing
