// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {

inline void file(DescriptorSet& set, DescriptorBytes descriptor) { set.ParseDescriptor(descriptor); }
inline void file(AitDescriptorSet& set, DescriptorBytes descriptor) { set.ParseDescriptorAit(descriptor); }

/// Files the descriptor that `section` begins with.
template <class Set>
void parse(Set& set, HeapBlock const& section) {
  file(set, {section.data(), section.data() + section.size()});
}
template <class Set = DescriptorSet>
Set parsed(HeapBlock const& section) {
  Set set;
  parse(set, section);
  return set;
}

}  // namespace sivane::testing
