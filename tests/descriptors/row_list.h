// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The rows of a descriptor set as a list to walk in tests of all of them.
#pragma once

#include <sivane/descriptors/descriptor_set.h>

#include <cstddef>
#include <string>
#include <vector>

namespace sivane::testing {

struct Row {
  int tag;  // for the two rows without a class, one of theirs
  char const* getter;
  std::size_t (*count)(DescriptorSet const&);
  std::string (*dump)(DescriptorSet const&);
  /// A descriptor as the case files write it: the set's first one, and one made from a bare pointer.
  std::string (*first)(DescriptorSet const&, unsigned char const* bytes);
  std::string (*bare)(unsigned char const* bytes);
};

std::vector<Row> const& row_list();
/// The row that a tag is filed in.
Row const& row_of(int tag);
bool has_class(int tag);

}  // namespace sivane::testing
