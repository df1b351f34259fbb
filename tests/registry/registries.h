// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The seven registries as the build made them.
#pragma once

#include <cstddef>
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
  std::size_t head;
};

std::vector<Registry> const& registries();
Registry const& registry_named(std::string const& name);

/// The rows, 17,985 of all registries together, for whose ids a lookup gives a name.
std::size_t known_rows();

}  // namespace sivane::testing
