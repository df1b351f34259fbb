// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <span>
#include <vector>

#include "input/handle.h"

namespace inspect {

/// The tables that every stream has on a usual PID.
std::vector<Handle> usual_handles();

/// The tables whose PIDs a section names: the program maps of a PAT, the AITs and carousels of a program map.
/// None where the section does not parse.
std::vector<Handle> handles_named_by(std::span<unsigned char const> section);

}  // namespace inspect
