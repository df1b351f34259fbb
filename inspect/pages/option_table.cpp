// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "pages/option_table.h"

#include <CLI/CLI.hpp>

#include "command_line.h"

namespace inspect {

namespace {

OptionRow row_of(CLI::Option const& option) {
  std::vector<std::string> const& letters = option.get_snames();
  return {letters.empty() ? "" : "-" + letters.front(), "--" + option.get_lnames().front(),
          option.get_type_size() == 0 ? "" : option.get_type_name(), option.get_description()};
}

}  // namespace

std::vector<CommandPage> option_table() {
  CLI::App app;
  Arguments arguments;
  add_commands(app, arguments);
  std::vector<CommandPage> pages;
  for (CommandRow const& row : command_list()) {
    CommandPage page{row.name, row.help, {}, {}};
    for (CLI::Option const* const option : app.get_subcommand(row.name)->get_options()) {
      if (!option->get_positional()) page.options.push_back(row_of(*option));
    }
    for (Input const input : row.inputs) page.kinds.emplace_back(name_of(input));
    pages.push_back(page);
  }
  return pages;
}

}  // namespace inspect
