// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The rows of a descriptor set as a list to walk in tests of all of them.
#pragma once

#include <sivane/descriptors/descriptor_set.h>

#include <cstddef>
#include <sstream>
#include <string>

namespace sivane::testing {

template <auto getter>
std::size_t count(DescriptorSet const& set) {
  return (set.*getter)().size();
}

template <auto getter>
std::string dump(DescriptorSet const& set) {
  std::ostringstream os;
  for (auto const& descriptor : (set.*getter)()) descriptor.dump_state(os);
  return os.str();
}

struct Row {
  int tag;  // for the two rows without a class, one of theirs
  char const* getter;
  std::size_t (*count)(DescriptorSet const&);
  std::string (*dump)(DescriptorSet const&);
};

namespace row_tag {
constexpr int user_private = 0xFE;
constexpr int other = 0x15;
}  // namespace row_tag

constexpr Row row_list[] = {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  {tag, #getter, &count<&DescriptorSet::getter>, &dump<&DescriptorSet::getter>},
#define SIVANE_GENERAL_ROW(kind, getter, element) \
  {row_tag::kind, #getter, &count<&DescriptorSet::getter>, &dump<&DescriptorSet::getter>},
#include <sivane/descriptors/descriptor_rows.inc>
};

}  // namespace sivane::testing
