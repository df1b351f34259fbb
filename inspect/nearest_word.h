// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace inspect {

/// "; did you mean WORD?" with the word that fewest changes of a letter lead to, or nothing where none is
/// near.
std::string suggestion(std::string_view written, std::span<std::string const> words);

}  // namespace inspect
