// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The seven registries as the build made them.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace sivane::testing {

using Rows = std::vector<std::pair<std::uint32_t, std::string>>;

struct Registry {
  std::string name;
  char const* (*look_up)(int);
  Rows rows;
};

std::vector<Registry> const& registries();

}  // namespace sivane::testing
