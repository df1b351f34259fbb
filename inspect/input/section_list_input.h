// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>

#include "commands/command.h"

namespace inspect {

/// Gives the sections of a text to the command, one a line: hexadecimal digits, behind a class name and a
/// blank if the class is not to be found by table id. False, with the reason reported, where the text cannot
/// be read on.
bool read_section_list(std::istream& in, Command& command);

}  // namespace inspect
