// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/raw_events.h"

#include <sivane/sivane.h>

namespace inspect {

namespace {

constexpr int short_event_tag = 0x4D;
constexpr int bytes_before_events = 14;
constexpr int bytes_before_length = 10;
constexpr int crc_size = 4;

std::string name_in(sivane::DescriptorBytes descriptor) {
  constexpr int language_bits = 24;
  sivane::Reader reader = descriptor.body();
  reader.skip_bits(language_bits);
  return reader.prefixed_string();
}

std::string name_of_next(sivane::Reader& reader) {
  std::string name;
  reader.skip_bits(bytes_before_length * 8 + 4);
  int const length = reader.bits(12);
  reader.each_descriptor(length, sivane::too_little_data, [&name](sivane::DescriptorBytes descriptor) {
    if (descriptor.tag() == short_event_tag && name.empty()) name = name_in(descriptor);
  });
  return name;
}

}  // namespace

std::vector<std::string> event_names(std::span<unsigned char const> section) {
  int const size = static_cast<int>(section.size());
  std::vector<std::string> names;
  try {
    sivane::Reader reader(section.data(), size - crc_size, size);
    reader.skip_bits(bytes_before_events * 8);
    while (reader.more()) names.push_back(name_of_next(reader));
  } catch (sivane::error const&) {
    // The section parsed, so that this is not reached; what was found stands.
  }
  return names;
}

}  // namespace inspect
