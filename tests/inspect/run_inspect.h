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

/// Runs sivane-inspect in the source tree with `arguments`, in which @ stands for the path of a file with
/// `input` and % for the folder of the samples; the file is standard input, too. In `err` the program's name
/// is left out, and the file is @ again.
Outcome inspect(std::string arguments, std::string const& input = "");
Outcome inspect(std::string const& arguments, Bytes const& input);

std::string hex_text(Bytes const& bytes);

}  // namespace sivane::testing
