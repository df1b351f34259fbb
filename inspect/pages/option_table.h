// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <vector>

namespace inspect {

/// An option as the manual page and the completions of shells need it.
struct OptionRow {
  std::string letter;  ///< with its dash; empty where there is none
  std::string word;    ///< with its dashes
  std::string value;   ///< what follows it; empty for a flag
  std::string help;
};

struct CommandPage {
  std::string name;
  std::string help;
  std::vector<OptionRow> options;
  std::vector<std::string> kinds;  ///< what its --input takes
};

/// All commands, from the table that the command line is read with.
std::vector<CommandPage> option_table();

}  // namespace inspect
