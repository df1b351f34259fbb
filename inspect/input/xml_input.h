// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/command.h"
#include "input/source.h"

namespace inspect {

/// Gives the sections of a document to the command. Throws `InputFault` where it is refused, or is no
/// document of sections.
void read_xml(Source& source, Command& command);

}  // namespace inspect
