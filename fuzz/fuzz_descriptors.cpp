// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Any bytes as a loop of descriptors that ends with its section: parse, name values, dump, copy, destroy, and
// build on demand those that the set keeps as bytes. Bit 0 of the first byte chooses the tag space of an AIT.
// A descriptor that is refused ends nothing, so that every one of an input gets its turn. The loop that hosts
// have for descriptors of their own walks there too.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/extended/extended.h>

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <vector>

#include "input.h"
#include "value_texts.h"

namespace {

using sivane::fuzzing::check;

template <class Descriptor>
void exercise(std::ostringstream& text, std::vector<Descriptor> const& descriptors) {
  for (Descriptor copy : descriptors) {
    sivane::fuzzing::check_texts(copy);
    copy.dump_state(text);
    copy._reset();
    copy.dump_state(text);
  }
}

void exercise(sivane::DescriptorSet const& set) {
  std::ostringstream text;
#define SIVANE_ROW(tag, Class, getter, element) exercise(text, set.getter());
#include <sivane/descriptors/descriptor_rows.inc>
}

void exercise(sivane::AitDescriptorSet const& set) {
  std::ostringstream text;
#define SIVANE_ROW(tag, Class, getter, element) exercise(text, set.getter());
#include <sivane/descriptors/ait_descriptor_rows.inc>
}

void file(sivane::DescriptorSet& set, sivane::DescriptorBytes bytes) { set.ParseDescriptor(bytes); }
void file(sivane::AitDescriptorSet& set, sivane::DescriptorBytes bytes) { set.ParseDescriptorAit(bytes); }

/// Where no private tags are in force, and where those are that have classes.
void exercise_extended(sivane::DescriptorBytes bytes) {
  std::ostringstream text;
  for (unsigned int const specifier : {0x00u, 0x28u, 0x29u}) {
    try {
      auto const built = sivane::extended::build(bytes, specifier);
      if (built == nullptr) continue;
      sivane::fuzzing::check_text(built->get_tag_text());
      built->dump_state(text);
      built->_reset();
      built->dump_state(text);
    } catch (sivane::error const& failure) {
      check(failure.text == "too little data", "the only way to fail");
    }
  }
}

template <class Set>
void exercise_loop(std::vector<unsigned char> const& block) {
  unsigned char const* const end = block.data() + block.size();
  Set set;
  for (unsigned char const* at = block.data(); end - at >= 2;
       at += std::min<std::ptrdiff_t>(2 + at[1], end - at)) {
    try {
      exercise_extended({at, end});
      file(set, {at, end});
    } catch (sivane::error const& failure) {
      check(failure.what() != nullptr, "what() is never null");
    }
  }
  Set const copy = set;
  set = {};
  exercise(copy);
}

/// It gives what fits, and fails where something does not.
void check_loop(std::vector<unsigned char> const& block) {
  int const size = static_cast<int>(block.size());
  int at = 0;
  bool is_refused = false;
  try {
    for (sivane::DescriptorBytes const descriptor : sivane::DescriptorLoop(block.data(), size)) {
      check(descriptor.tag() == block[static_cast<std::size_t>(at)], "descriptors lie one after the other");
      at += 2 + descriptor.length();
      check(at <= size, "a descriptor that is given lies in its loop");
    }
  } catch (sivane::error const&) {
    is_refused = true;
  }
  check(is_refused == (at < size), "a loop gives all of its descriptors or fails");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  sivane::fuzzing::Input input(data, size);
  bool const is_ait = (input.byte() & 1) != 0;
  // A block of its own size: the address sanitizer sees each byte behind it.
  std::vector<unsigned char> const block = input.rest();
  check_loop(block);
  is_ait ? exercise_loop<sivane::AitDescriptorSet>(block) : exercise_loop<sivane::DescriptorSet>(block);
  return 0;
}
