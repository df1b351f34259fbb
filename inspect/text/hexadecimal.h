// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

namespace inspect {

/// The low one or two bytes of a number as C writes them: 0x and two digits for each.
std::string c_hexadecimal(int value, int bytes);

}  // namespace inspect
