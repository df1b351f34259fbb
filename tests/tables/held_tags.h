// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What a table holds, as README.md tells for the key "holds".
#pragma once

#include <sivane/sivane.h>

#include <string>
#include <type_traits>
#include <vector>

#include "rows.h"

namespace sivane::testing {

inline void add(std::string& text, std::string const& item) {
  if (!text.empty() && !item.empty()) text += ' ';
  text += item;
}

inline std::string two_digits(int byte) {
  constexpr char digits[] = "0123456789ABCDEF";
  return {digits[byte / 16], digits[byte % 16]};
}

template <class Descriptor>
void add_tags(std::string& text, std::vector<Descriptor> const& descriptors) {
  for (Descriptor const& descriptor : descriptors) add(text, two_digits(descriptor.tag));
}

/// What the owner's set holds, if it has one.
template <class Owner>
std::string tags(Owner const& owner) {
  using Set = std::conditional_t<std::is_base_of_v<AitDescriptorSet, Owner>, AitDescriptorSet, DescriptorSet>;
  std::string text;
  if constexpr (std::is_base_of_v<Set, Owner>) {
    each_row<Set>([&](auto const& row) { add_tags(text, (owner.*row.getter)()); });
  }
  return text;
}

template <class Entry>
void add_entries(std::string& text, std::vector<Entry> const& entries) {
  for (Entry const& entry : entries) add(text, '{' + tags(entry) + '}');
}

template <class Table>
std::string held(Table const& table) {
  std::string text;
  if constexpr (requires { table.ca_descriptors; }) {
    add_tags(text, table.ca_descriptors);
    text = '(' + text + ')';
  }
  add(text, tags(table));
  if constexpr (requires { table.stream_infos; }) add_entries(text, table.stream_infos);
  if constexpr (requires { table.service_infos; }) add_entries(text, table.service_infos);
  if constexpr (requires { table.event_infos; }) add_entries(text, table.event_infos);
  if constexpr (requires { table.status_infos; }) add_entries(text, table.status_infos);
  if constexpr (requires { table.application_infos; }) add_entries(text, table.application_infos);
  if constexpr (requires { table.data; }) {
    for (unsigned char const byte : table.data) add(text, two_digits(byte));
  }
  return text.empty() ? text : text + '\n';
}

}  // namespace sivane::testing
