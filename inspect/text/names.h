// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <set>
#include <string>

namespace inspect {

// Registered names as people read them: without the blanks and "&nbsp;" that the lists left in them.

/// The name alone; empty where the number is not registered.
std::string registered_name(char const* (*lookup)(int), int id);
/// The number and, where there is one, the name in brackets: "1 (Astra Satellite Network 19,2°E)".
std::string numbered(char const* (*lookup)(int), int id);
/// Of a CA system, whose number is known in hexadecimal: "0x0100 (Canal Plus)".
std::string numbered_ca_system(int id);
/// The names of CA systems with a comma between.
std::string ca_systems(std::set<int> const& ids);

}  // namespace inspect
