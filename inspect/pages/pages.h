// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

namespace inspect {

/// The manual page, in the language of man(7).
std::string manual_page();

// What makes a shell complete the tool's command lines.
std::string bash_completion();
std::string zsh_completion();
std::string fish_completion();

}  // namespace inspect
