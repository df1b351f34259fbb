// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <vector>

#include "commands/command.h"

namespace inspect {

/// Sections of one table id on one PID.
struct Handle {
  int pid;
  int table_id;
};

/// Gives the sections of a stream of 188-byte packets to the command: those of `handles`, or, where it is
/// empty, of every table that has a class. False, with the reason reported, where the stream cannot be read
/// on or a packet is out of sync.
bool read_ts(std::istream& in, std::vector<Handle> const& handles, Command& command);

}  // namespace inspect
