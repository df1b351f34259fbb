// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What the tool says on standard error.
#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// One line behind the program's name. Control characters in it are made visible.
void report(std::string_view line);

/// The same for what `--quiet` leaves out, which is no failure.
void note(std::string_view line);
void be_quiet();

/// A note for the end of the run, when all that is shown was shown.
void conclude(std::string line);
void print_conclusions();

/// One line that the next replaces, for a terminal; every other line removes it.
void show_progress(std::string_view line);
void clear_progress();

/// A number with a comma between thousands: "1,274,120".
std::string grouped(long long number);

/// A number and what it counts, in the singular for 1: "1 section", "4,000 sections".
std::string counted(long long number, std::string_view noun);

}  // namespace inspect
