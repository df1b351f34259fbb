// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "run.h"

#include <unistd.h>

#include <algorithm>
#include <ostream>

#include "console.h"
#include "input/dvb_input.h"
#include "input/json_input.h"
#include "input/packet_input.h"
#include "input/section_list_input.h"
#include "input/source.h"
#include "input/ts_input.h"
#include "input/xml_input.h"
#include "output.h"

namespace inspect {

namespace {

void read_input(Source& source, Options const& options, Command& command) {
  switch (options.input) {
    case Input::sections:
      return read_section_list(source, command);
    case Input::xml:
      return read_xml(source, command);
    case Input::json:
      return read_json(source, command);
    case Input::ts:
      return read_ts(source, options, command);
    case Input::packets:
      return read_packets(source, options, command);
  }
}

/// Reads to the end of the run. A fault on the way is told, and what was found up to there is shown.
template <class Read>
ExitStatus read_to_end(Read read, Command& command) {
  ExitStatus status = all_well;
  try {
    read();
  } catch (NoInput const&) {
    throw;
  } catch (InputFault const& fault) {
    report(fault.what());
    status = unusable;
  }
  clear_progress();
  command.finish();
  bool const has_failed = command.failures() > 0 || command.has_finding();
  return status == all_well && has_failed ? section_failed : status;
}

ExitStatus read_all(Options const& options, Command& command, RunEnd& end) try {
  if (is_dvb(options.source) && command.packet_sink() != nullptr)
    throw NoInput(std::string(options.command->name) + " needs all packets, and an adapter gives sections");
  if (is_dvb(options.source)) return read_to_end([&] { read_dvb(options, command, end); }, command);
  auto const source = open_source(options.source, options.follow, end);
  ExitStatus const status = read_to_end([&] { read_input(*source, options, command); }, command);
  source->report_losses();
  return status;
} catch (NoInput const& fault) {
  report(fault.what());
  return unusable;
}

/// Reads the source, and the other one after it, if there is one.
ExitStatus read_sources(Options options, Command& command, RunEnd& end) {
  ExitStatus const status = read_all(options, command, end);
  if (options.other_source.empty()) return status;
  options.source = options.other_source;
  options.input = options.other_input;
  return std::max(status, read_all(options, command, end));
}

void count_failures(Command const& command) {
  if (command.problems() > 0)
    conclude(counted(command.problems(), "problem") + " passed over (see --strict)");
  if (command.failures() == 0) return;
  conclude(grouped(command.failures()) + " of " + counted(command.number(), "section") + " failed");
}

}  // namespace

ExitStatus run(Options const& options) {
  if (options.quiet) be_quiet();
  OutputBuffer buffer(STDOUT_FILENO);
  std::ostream out(&buffer);
  out.exceptions(std::ios::badbit);
  RunEnd end(options.seconds, [&out] { out.flush(); });
  bool const compares_with_document =
      options.command->reads_two && (options.input == Input::xml || options.other_input == Input::xml);
  auto const command = options.command->make({out, buffer.is_terminal(), options.charset, options.source,
                                              options.as_json, compares_with_document, options.with_names});
  command->set_parsing(options.parsing);
  if (options.changes) command->show_changes_alone();
  ExitStatus const status = read_sources(options, *command, end);
  out.flush();
  count_failures(*command);
  print_conclusions();
  return status;
}

}  // namespace inspect
