// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <optional>

#include "options.h"

namespace CLI {
class App;
}

namespace inspect {

/// Either options to run with, or the status to leave with: help was printed, or a fault reported.
struct CommandLine {
  std::optional<Options> options;
  int exit_status = 0;
};

CommandLine read_command_line(int argc, char** argv);

/// The table of commands and options, which the manual page and the shells' completions are made from as
/// well.
void add_commands(CLI::App& app, Arguments& arguments);

}  // namespace inspect
