// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "command_line.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

#include "console.h"
#include "exit_status.h"
#include "help_texts.h"
#include "nearest_word.h"
#include "output.h"

namespace inspect {

namespace {

void add_options_of_streams(CLI::App& command, Arguments& arguments) {
  command
      .add_option("-H,--handle", arguments.handles, "Read these tables and not the usual ones; repeatable")
      ->type_name("PID:TABLE_ID")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  command.add_option("--seconds", arguments.seconds, "End the run after so many seconds")->type_name("N");
  command.add_option("--packets", arguments.packets, "End the run after so many packets")->type_name("N");
  command.add_flag("--follow", arguments.follow, "Wait for more at the end of a file");
  command.add_flag("--changes", arguments.changes,
                   "Leave out sections that were shown before and are the same");
  command.add_flag("--tolerant", arguments.tolerant,
                   "A descriptor that fails costs nothing else; the lists' way without being asked");
  command.add_flag("--strict", arguments.strict,
                   "A descriptor that fails costs its section; the others' way");
  command
      .add_option("--charset", arguments.charset,
                  "The character table of texts that name none, as iconv calls it (ISO-8859-1)")
      ->type_name("NAME");
  command
      .add_option("--charset-always", arguments.charset_always,
                  "The character table of all texts, whatever they name")
      ->type_name("NAME");
  command.add_flag("-q,--quiet", arguments.quiet,
                   "No progress, no counts at the end; failures are still told");
}

void add_command(CLI::App& app, CommandRow const& row, Arguments& arguments) {
  CLI::App& command = *app.add_subcommand(row.name, row.help);
  std::string const what = "A file, - for standard input, or an address: see sivane-inspect --help";
  command.add_option(row.reads_two ? "A" : "SOURCE", arguments.source, what)->required()->type_name("");
  if (row.reads_two)
    command.add_option("B", arguments.other_source, "What is compared with it")->required()->type_name("");
  command.add_option("-i,--input", arguments.input, "What the source holds: see sivane-inspect --help")
      ->type_name("KIND")
      ->capture_default_str();
  add_options_of_streams(command, arguments);
  if (row.offer == CommandRow::Offer::json)
    command.add_flag("--json", arguments.as_json, "One JSON object, for a program (check, diff)");
  if (row.offer == CommandRow::Offer::names)
    command.add_flag(
        "--names", arguments.with_names,
        "Behind each code its name, as in \"stream_type_name\"; registered ones are of 2003 to 2008 (json)");
}

std::vector<std::string> command_names() {
  std::vector<std::string> names;
  for (CommandRow const& row : command_list()) names.emplace_back(row.name);
  return names;
}

std::vector<std::string> option_names(CLI::App const& command) {
  std::vector<std::string> names;
  for (CLI::Option const* const option : command.get_options()) {
    for (std::string const& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

std::string fault_of_command(CLI::App const& command, CLI::ParseError const& reason) {
  std::vector<std::string> const unknown = command.remaining();
  if (unknown.empty()) return reason.what();
  std::string const& word = unknown.front();
  if (!word.starts_with('-')) return "one SOURCE is read at a time, and " + word + " is another";
  return "no such option: " + word + suggestion(word.substr(0, word.find('=')), option_names(command));
}

int print_help(CLI::App const& app, CLI::ParseError const& asked_for) {
  OutputBuffer buffer(STDOUT_FILENO);
  std::ostream out(&buffer);
  out.exceptions(std::ios::badbit);
  app.exit(asked_for, out, out);
  out.flush();
  return all_well;
}

int leave(CLI::App const& app, CLI::ParseError const& reason) {
  bool const is_help = reason.get_exit_code() == 0;
  if (is_help) return print_help(app, reason);
  std::string text = "a command is required";
  std::vector<std::string> const unknown = app.remaining();
  if (!app.get_subcommands().empty()) {
    text = fault_of_command(*app.get_subcommands().front(), reason);
  } else if (!unknown.empty()) {
    text = "no such command or option: " + unknown.front() + suggestion(unknown.front(), command_names());
  }
  report(text + " (see --help)");
  return unusable;
}

}  // namespace

void add_commands(CLI::App& app, Arguments& arguments) {
  app.set_version_flag("--version", "sivane-inspect " SIVANE_VERSION);
  app.require_subcommand(1);
  app.footer(help_footer());
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  for (CommandRow const& row : command_list()) add_command(app, row, arguments);
}

CommandLine read_command_line(int argc, char** argv) {
  CLI::App app(program_purpose, program_name);
  Arguments arguments;
  add_commands(app, arguments);
  try {
    app.parse(argc, argv);
    std::string const name = app.get_subcommands().front()->get_name();
    return {understand(*std::ranges::find(command_list(), name, &CommandRow::name), arguments)};
  } catch (CLI::ParseError const& reason) {
    return {std::nullopt, leave(app, reason)};
  }
}

}  // namespace inspect
