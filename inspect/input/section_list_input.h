// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/command.h"
#include "input/source.h"

namespace inspect {

/// Gives the sections of a text to the command, one a line: hexadecimal digits, after a class name and a
/// blank if the class is not to be found by table id, or after a PID and a table id as the command sections
/// writes them. Throws `InputFault`.
void read_section_list(Source& source, Command& command);

}  // namespace inspect
