// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/command.h"

#include <sivane/sivane.h>

#include <iostream>

namespace inspect {

void report(std::string_view reason) { std::cerr << "sivane-inspect: " << reason << '\n'; }

void Command::take(Section const& section) {
  ++number_;
  show(section);
}

void Command::take_broken(char const* reason) {
  ++number_;
  refuse(reason);
}

std::unique_ptr<Table> Command::table_of(Section const& section) {
  TableClass const* const table_class = class_of(section);
  if (table_class == nullptr) {
    refuse("no class for table id");
    return nullptr;
  }
  std::unique_ptr<Table> table = table_class->make();
  try {
    if (section.node != nullptr) {
      table->load(section.node);
    } else {
      table->parse(section.bytes);
    }
  } catch (sivane::error const& failure) {
    fail({table_class->name, failure.code, failure.what()});
    return nullptr;
  }
  return table;
}

void Command::fail(Failure const& failure) {
  ++failures_;
  show_failure(failure);
  std::string line = "section " + std::to_string(number_) + " (" + std::string(failure.class_name) +
                     "): error " + std::to_string(failure.code);
  if (!failure.what.empty()) line += ": " + failure.what;
  report(line);
}

void Command::refuse(char const* reason) { fail({"-", -1, reason}); }

}  // namespace inspect
