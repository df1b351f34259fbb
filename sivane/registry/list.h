// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Part of the build, not of the library: reads a list of data/, in the form that data/README.md tells.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace sivane::registry {

struct Row {
  std::uint32_t id;
  std::string name;  ///< ISO 8859-1
};

struct List {
  std::vector<Row> rows;   ///< in table order
  std::size_t head = 0;    ///< the rows above the empty line
  std::size_t digits = 4;  ///< of each id, 4 or 8
};

/// Throws std::runtime_error, "path:line: what is wrong", for the first line that has not got the form.
List read_list(std::istream& in, std::string const& path);

}  // namespace sivane::registry
