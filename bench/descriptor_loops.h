// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>

#include <vector>

#include "plain_bytes.h"

namespace sivane::bench {

/// Parses each loop into an owner of its own; the vector of owners keeps its memory.
inline void parse_loops(std::vector<testing::Bytes> const& all, std::vector<DescriptorSet>& owners) {
  owners.clear();
  for (testing::Bytes const& loop : all) {
    int const size = static_cast<int>(loop.size());
    Reader reader = Reader::within(loop.data(), size);
    owners.emplace_back().parse_descriptors(reader, size, too_little_data);
  }
}

}  // namespace sivane::bench
