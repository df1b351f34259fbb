// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The two descriptor sets, to be tested by the same code.
#pragma once

#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>

#include <type_traits>
#include <vector>

#include "heap_block.h"

namespace sivane::testing {

template <class Set, class Descriptor>
struct Row {
  int tag;  // for the two rows without a class, one of theirs
  char const* name;
  char16_t const* element;
  std::vector<Descriptor> const& (Set::*getter)() const;
};

/// Calls `visit` with the `Row` of each row of the set.
template <class Set, class Visit>
void each_row(Visit visit) {
  [[maybe_unused]] constexpr int other = 0x15;
  [[maybe_unused]] constexpr int user_private = 0xFE;
#define SIVANE_VISIT(tag, Class, getter, element) \
  visit(Row<Set, Class>{tag, #getter, u"" element, &Set::getter});
  if constexpr (std::is_same_v<Set, DescriptorSet>) {
#define SIVANE_ROW SIVANE_VISIT
#include <sivane/descriptors/descriptor_rows.inc>
  } else {
#define SIVANE_ROW SIVANE_VISIT
#include <sivane/descriptors/ait_descriptor_rows.inc>
  }
#undef SIVANE_VISIT
}

inline void file(DescriptorSet& set, DescriptorBytes descriptor) { set.ParseDescriptor(descriptor); }
inline void file(AitDescriptorSet& set, DescriptorBytes descriptor) { set.ParseDescriptorAit(descriptor); }

/// The descriptor that a section begins with.
inline DescriptorBytes descriptor_in(HeapBlock const& section) {
  return {section.data(), section.data() + section.size()};
}

}  // namespace sivane::testing
