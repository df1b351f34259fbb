// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "command_list.h"
#include "input/ts_input.h"

namespace inspect {

/// What the user asked for.
struct Options {
  CommandRow const* command = nullptr;
  Input input = Input::ts;
  std::vector<Handle> handles;  ///< empty: the usual ones
  std::string file;             ///< "-" is standard input
};

/// Either options to run with, or the status to leave with: help was printed, or a fault reported.
struct CommandLine {
  std::optional<Options> options;
  int exit_status = 0;
};

CommandLine read_command_line(int argc, char** argv);

}  // namespace inspect
