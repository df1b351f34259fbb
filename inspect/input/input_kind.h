// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

#include "command_list.h"

namespace inspect {

/// What a file holds by its first bytes: a document, or lines of JSON; `otherwise` where it is neither, or no
/// file.
Input kind_of(std::string const& source, Input otherwise);

/// Whether the texts of two kinds cannot be brought into one form.
bool is_lossy(Input a, Input b);

}  // namespace inspect
