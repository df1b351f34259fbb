// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

namespace inspect {

namespace {

constexpr int last_pid = 0x1FFF;
constexpr int last_table_id = 0xFF;

/// A number as C writes it: hexadecimal behind 0x, octal behind 0, decimal. Nothing if it is none, or above
/// `last`.
std::optional<int> c_number(std::string_view text, int last) {
  int base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    base = 16;
    text.remove_prefix(2);
  } else if (text.starts_with('0')) {
    base = 8;
  }
  unsigned int number = 0;
  auto const [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (fault != std::errc() || end != text.data() + text.size()) return {};
  if (number > static_cast<unsigned int>(last)) return {};
  return static_cast<int>(number);
}

Handle handle_of(std::string const& text) {
  std::size_t const colon = text.find(':');
  if (colon == std::string::npos) throw CLI::ValidationError("--handle", text + " is not PID:TABLE_ID");
  auto const pid = c_number(std::string_view(text).substr(0, colon), last_pid);
  auto const table_id = c_number(std::string_view(text).substr(colon + 1), last_table_id);
  if (!pid) throw CLI::ValidationError("--handle", text + ": the PID is not a number from 0 to 0x1fff");
  if (!table_id)
    throw CLI::ValidationError("--handle", text + ": the table id is not a number from 0 to 0xff");
  return {*pid, *table_id};
}

/// The texts of the command line, before they are understood.
struct Arguments {
  std::string input = "ts";
  std::vector<std::string> handles;
  std::string file;
};

std::vector<std::string> kinds_of(CommandRow const& row) {
  std::vector<std::string> kinds;
  for (Input const input : row.inputs) kinds.emplace_back(name_of(input));
  return kinds;
}

CLI::App* add_command(CLI::App& app, CommandRow const& row, Arguments& arguments) {
  CLI::App* const command = app.add_subcommand(row.name, row.help);
  command->add_option("FILE", arguments.file, "What to read; - is standard input")->required()->type_name("");
  command->add_option("-i,--input", arguments.input, "What FILE holds: see below")
      ->check(CLI::IsMember(kinds_of(row)))
      ->type_name("KIND")
      ->capture_default_str();
  command
      ->add_option("-H,--handle", arguments.handles, "Read these tables and not the usual ones; repeatable")
      ->type_name("PID:TABLE_ID")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  return command;
}

Input input_of(CommandRow const& row, std::string_view name) {
  return *std::ranges::find(row.inputs, name, name_of);
}

Options understand(CommandRow const& row, Arguments const& arguments) {
  Options options;
  options.command = &row;
  options.file = arguments.file;
  options.input = input_of(row, arguments.input);
  for (std::string const& text : arguments.handles) options.handles.push_back(handle_of(text));
  if (!options.handles.empty() && options.input != Input::ts)
    throw CLI::ValidationError("--handle", "only a transport stream has PIDs (--input ts)");
  return options;
}

int leave(CLI::App const& app, CLI::ParseError const& reason) {
  bool const is_help = reason.get_exit_code() == 0;
  if (is_help) return app.exit(reason);
  std::string text = reason.what();
  std::vector<std::string> const unknown = app.remaining();
  if (app.get_subcommands().empty()) {
    text = unknown.empty() ? "a command is required" : "no such command or option: " + unknown.front();
  }
  report(text + " (see --help)");
  return unusable;
}

constexpr char const* footer =
    "Kinds of input:\n"
    "  ts        188-byte packets; the first that does not begin with 0x47 ends the run\n"
    "  sections  a section on each line, in hexadecimal; a class name and a blank in front, as in\n"
    "            'Pat 00b00d...', choose the class that it is read with\n"
    "  xml       a document as the command xml writes it; for dump and xml\n"
    "\n"
    "PIDs and table ids are numbers as in C: --handle 0x11:0x42 --handle 17:70\n"
    "\n"
    "Exit status: 0 all is well; 1 a section failed, each with a line on standard error; 2 wrong usage,\n"
    "or the input cannot be read or is out of sync.\n";

}  // namespace

CommandLine read_command_line(int argc, char** argv) {
  CLI::App app("Shows what is in an MPEG-2/DVB transport stream.", "sivane-inspect");
  app.set_version_flag("--version", "sivane-inspect " SIVANE_VERSION);
  app.require_subcommand(1);
  app.footer(footer);
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  Arguments arguments;
  std::vector<CLI::App const*> commands;
  for (CommandRow const& row : command_list()) commands.push_back(add_command(app, row, arguments));
  try {
    app.parse(argc, argv);
    auto const parsed = std::ranges::find_if(commands, [](auto const* command) { return command->parsed(); });
    return {understand(command_list()[static_cast<std::size_t>(parsed - commands.begin())], arguments)};
  } catch (CLI::ParseError const& reason) {
    return {std::nullopt, leave(app, reason)};
  }
}

}  // namespace inspect
