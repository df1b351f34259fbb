// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The rows of a descriptor set as a list to walk in tests of all of them.
#pragma once

#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>

#include <cstddef>
#include <string>
#include <vector>

namespace sivane::testing {

template <class Set>
struct RowOf {
  int tag;  // for the two rows without a class, one of theirs
  char const* getter;
  char16_t const*
      element;  // in documents; null of an AIT's descriptors, whose documents are compared elsewhere
  std::size_t (*count)(Set const&);
  std::string (*dump)(Set const&);
  /// A descriptor as the case files write it: the set's first one, and one made from a bare pointer.
  std::string first(Set const& set, unsigned char const* bytes) const {
    return first_text(set, element, bytes);
  }
  std::string bare(unsigned char const* bytes) const { return bare_text(element, bytes); }

  std::string (*first_text)(Set const&, char16_t const* element, unsigned char const* bytes);
  std::string (*bare_text)(char16_t const* element, unsigned char const* bytes);
};
using Row = RowOf<DescriptorSet>;

// For `DescriptorSet` and `AitDescriptorSet`.
template <class Set = DescriptorSet>
std::vector<RowOf<Set>> const& row_list();
/// The row that a tag is filed in.
template <class Set = DescriptorSet>
RowOf<Set> const& row_of(int tag);
template <class Set = DescriptorSet>
bool has_class(int tag);

}  // namespace sivane::testing
