// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <string_view>

namespace inspect {

/// Writes the page around its data, which are JSON: one file of HTML that asks for no other.
void write_page(std::ostream& out, std::string_view json);

}  // namespace inspect
