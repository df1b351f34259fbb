// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/command.h"
#include "input/source.h"
#include "options.h"

namespace inspect {

/// Gives the sections of 188-byte packets to the command as the library's push driver delivers them: of each
/// packet the first that starts in it. Those of the options' handles, or, where there are none, of every
/// table that has a class. Throws `InputFault` where a packet is out of sync.
void read_packets(Source& source, Options const& options, Command& command);

}  // namespace inspect
