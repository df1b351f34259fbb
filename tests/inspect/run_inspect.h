// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <section_builder.h>

#include <string>

namespace sivane::testing {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// Runs sivane-inspect with `arguments`, in which the word @ stands for the path of a file with `input`; the
/// file is standard input, too.
Outcome inspect(std::string const& arguments, std::string const& input = "");
Outcome inspect(std::string const& arguments, Bytes const& input);

std::string hex_text(Bytes const& bytes);
int line_count(std::string const& text);

}  // namespace sivane::testing
