// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace sivane::testing {

/// What a file holds; nothing where it cannot be read.
inline std::string contents(std::filesystem::path const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace sivane::testing
