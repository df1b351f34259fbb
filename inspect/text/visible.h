// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// Text for a terminal: well-formed UTF-8 stays; control characters other than line feed, C1 controls, marks
/// that turn the direction of writing, and bytes that are no UTF-8 become `\x` and two digits for each byte,
/// so that nothing in a broadcast or a file name can steer a terminal.
std::string visible(std::string_view text);

}  // namespace inspect
