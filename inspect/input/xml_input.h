// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>

#include "commands/command.h"

namespace inspect {

/// Gives the sections of a document to the command. False, with the reason reported, where it is refused, or
/// is no document of sections.
bool read_xml(std::istream& in, Command& command);

}  // namespace inspect
