// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

#include "check/observation.h"

namespace inspect {

// What a finding is about, as people read it.

/// "PID 0x0100"
std::string pid_text(int pid);
/// "SDT 1 on PID 0x0011", with its section where `number` is not negative
std::string table_text(int pid, SectionSight const& section, int number = -1);
/// "612 ms"
std::string milliseconds_text(std::int64_t ticks);
/// "0:01:02.345", or "-" where the time is not known.
std::string time_text(std::int64_t ticks);

}  // namespace inspect
