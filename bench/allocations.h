// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstddef>

namespace sivane::bench {

/// How often this program has asked for memory so far.
std::size_t allocations();

}  // namespace sivane::bench
