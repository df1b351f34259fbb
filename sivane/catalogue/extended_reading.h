// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: descriptors that a set keeps as bytes. One that is broken costs the catalogue nothing but itself.
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/extended/extended.h>

#include <optional>

namespace sivane::catalogue {

/// Nothing where it is of another class, or broken.
template <class Descriptor>
std::optional<Descriptor> read_extended(DescriptorGeneral const& bytes) {
  return extended::as<Descriptor>(bytes, extended::Malformed::is_nothing);
}

/// The first of the class.
template <class Descriptor>
std::optional<Descriptor> find_extended(DescriptorSet const& set) {
  for (DescriptorGeneral const& bytes : set.get_general_descriptors()) {
    if (auto found = read_extended<Descriptor>(bytes)) return found;
  }
  return std::nullopt;
}

}  // namespace sivane::catalogue
