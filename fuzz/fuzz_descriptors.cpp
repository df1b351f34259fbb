// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Any bytes as a loop of descriptors that ends with its section: parse, dump, copy, destroy. One that is
// refused ends nothing, so that every descriptor of an input gets its turn.
#include <sivane/descriptors/descriptor_set.h>

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <vector>

#include "input.h"

namespace {

using sivane::fuzzing::check;

template <class Descriptor>
void exercise(std::ostringstream& text, std::vector<Descriptor> const& descriptors) {
  for (Descriptor copy : descriptors) {
    copy.dump_state(text);
    copy._reset();
    copy.dump_state(text);
  }
}

void exercise(sivane::DescriptorSet const& set) {
  std::ostringstream text;
#define SIVANE_ROW(tag, Class, getter, element, tag_text) exercise(text, set.getter());
#define SIVANE_GENERAL_ROW(kind, getter, element) exercise(text, set.getter());
#include <sivane/descriptors/descriptor_rows.inc>
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  // A block of its own size: the address sanitizer sees each byte behind it.
  const std::vector<unsigned char> block(data, data + size);
  unsigned char const* const end = block.data() + size;
  sivane::DescriptorSet set;
  for (unsigned char const* at = block.data(); end - at >= 2;
       at += std::min<std::ptrdiff_t>(2 + at[1], end - at)) {
    try {
      set.ParseDescriptor({at, end});
    } catch (sivane::error const& failure) {
      check(failure.what() != nullptr, "what() is never null");
    }
  }
  const sivane::DescriptorSet copy = set;
  set = {};
  exercise(copy);
  return 0;
}
