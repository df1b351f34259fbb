// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "case_file.h"
#include "section_builder.h"

namespace sivane::testing {

/// The key of a case file's line and what stands from its eighth character on.
std::pair<std::string, std::string> split(Line const& line);

/// What the lines of a case make up for the tool to read; README.md in the folder of the cases tells how.
/// Throws on a key that is none.
Bytes make_input(std::vector<Line> const& lines);

}  // namespace sivane::testing
