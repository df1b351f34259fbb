// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

#include "commands/command.h"

namespace inspect {

/// The library's own text of an error, or what its code means where it gives none.
std::string reason_text(int code, std::string const& what);

/// Where a section failed, as far as that is known, and why:
/// "PID 0x0010, NIT 0x40, byte 37, at 1,274,120: descriptor start end mismatch".
std::string failure_text(Section const& section, Failure const& failure);

/// The same for what a tolerant parsing has passed over, with the descriptor's tag.
std::string problem_text(Section const& section, std::string_view class_name,
                         sivane::ParseProblem const& problem);

}  // namespace inspect
