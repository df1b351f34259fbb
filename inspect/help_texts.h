// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <span>
#include <string>

namespace inspect {

/// What the help and the manual page tell beside the commands and their options.
struct HelpRow {
  char const* word;
  char const* meaning;
};

struct HelpList {
  char const* title;
  std::span<HelpRow const> rows;
};

inline constexpr char const* program_name = "sivane-inspect";
inline constexpr char const* program_purpose = "Shows what is in an MPEG-2/DVB transport stream.";

std::span<HelpList const> help_lists();

/// The lists as they follow the options.
std::string help_footer();

}  // namespace inspect
