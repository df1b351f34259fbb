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
#include "input/section_list_input.h"
#include "input/xml_input.h"

namespace inspect {

namespace {

bool read_sections(std::istream& in, Options const& options, Command& command) {
  switch (options.input) {
    case Input::sections:
      return read_section_list(in, command);
    case Input::xml:
      return read_xml(in, command);
    case Input::ts:
      break;
  }
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
  std::unique_ptr<Command> const command = options.command->make(std::cout);
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
