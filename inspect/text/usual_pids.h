// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

namespace inspect {

/// What is in a PID that every stream uses alike (ETSI EN 300 468, table 1); "unreferenced" for all others.
std::string usual_content(int pid);

}  // namespace inspect
