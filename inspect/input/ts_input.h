// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/command.h"
#include "input/source.h"
#include "options.h"

namespace inspect {

/// Gives every section of a transport stream to the command. Packets of 188, 192 or 204 bytes are found by
/// themselves; what is none is reported, and so is what was lost. Throws `NoInput` where there is no packet,
/// `InputFault` where the source cannot be read on.
void read_ts(Source& source, Options const& options, Command& command);

}  // namespace inspect
