// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/command.h"
#include "input/source.h"

namespace inspect {

/// Gives every line that the command `json` has written to the command; lines of sections that failed are
/// skipped. Throws `InputFault` where the source cannot be read on.
void read_json(Source& source, Command& command);

}  // namespace inspect
