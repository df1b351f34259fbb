// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "command.h"

#include <iostream>

namespace inspect {

void report(std::string_view reason) { std::cerr << "sivane-inspect: " << reason << '\n'; }

void Command::take(Section const& section) {
  ++number_;
  show(section);
}

void Command::take_broken_section() {
  ++number_;
  refuse("not a whole section");
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
