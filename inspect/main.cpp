// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Shows what is in a transport stream: a host of the library, with the means that any host has.
#include <cerrno>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>

#include "command_line.h"
#include "dump_command.h"
#include "events_command.h"
#include "networks_command.h"
#include "section_list_input.h"
#include "sections_command.h"
#include "services_command.h"
#include "xml_command.h"
#include "xml_input.h"

namespace inspect {

namespace {

std::unique_ptr<Command> make_command(Options const& options) {
  switch (options.show) {
    case Options::Show::xml:
      return std::make_unique<XmlCommand>(std::cout);
    case Options::Show::sections:
      return std::make_unique<SectionsCommand>(std::cout);
    case Options::Show::services:
      return std::make_unique<ServicesCommand>(std::cout);
    case Options::Show::events:
      return std::make_unique<EventsCommand>(std::cout);
    case Options::Show::networks:
      return std::make_unique<NetworksCommand>(std::cout);
    default:
      return std::make_unique<DumpCommand>(std::cout);
  }
}

bool read_sections(std::istream& in, Options const& options, Command& command) {
  if (options.input == Options::Input::sections) return read_section_list(in, command);
  if (options.input == Options::Input::xml) return read_xml(in, command);
  return read_ts(in, options.handles, command);
}

bool read(std::istream& in, Options const& options, Command& command) {
  bool const is_read = read_sections(in, options, command);
  command.finish();
  return is_read;
}

bool open_and_read(Options const& options, Command& command) {
  if (options.file == "-") return read(std::cin, options, command);
  std::ifstream file(options.file, std::ios::binary);
  if (file) return read(file, options, command);
  report("cannot open " + options.file + ": " + std::strerror(errno));
  return false;
}

int run(Options const& options) {
  std::unique_ptr<Command> const command = make_command(options);
  bool const is_read = open_and_read(options, *command);
  if (!std::cout.flush()) {
    report("cannot write to standard output");
    return unusable;
  }
  if (!is_read) return unusable;
  return command->failures() > 0 ? section_failed : all_well;
}

}  // namespace

}  // namespace inspect

int main(int argc, char** argv) try {
  std::ios::sync_with_stdio(false);
  auto const [options, exit_status] = inspect::read_command_line(argc, argv);
  return options ? inspect::run(*options) : exit_status;
} catch (std::exception const& failure) {
  inspect::report(failure.what());
  return inspect::unusable;
}
