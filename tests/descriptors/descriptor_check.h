// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>

#include <string>
#include <utility>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {

/// The code and text of the `error` that `action` throws as the case files write them; nothing where it
/// throws none.
template <class Action>
std::string thrown(Action&& action) {
  const auto failure = caught_error(action);
  if (!failure) return "";
  const std::pair<error::errorcode_enum, char const*> names[] = {
      {error::no_errorcode, "no_errorcode"},
      {error::length_error, "length_error"},
      {error::item_length_error, "item_length_error"},
      {error::syntax_error, "syntax_error"}};
  std::string text = "some other code";
  for (auto const& [code, name] : names) {
    if (code == failure->code) text = name;
  }
  const std::string message = failure->what();
  return message.empty() ? text : text + ' ' + message;
}

/// Files the descriptor that `section` begins with.
inline void parse(DescriptorSet& set, HeapBlock const& section) {
  set.ParseDescriptor({section.data(), section.data() + section.size()});
}
inline DescriptorSet parsed(HeapBlock const& section) {
  DescriptorSet set;
  parse(set, section);
  return set;
}

}  // namespace sivane::testing
