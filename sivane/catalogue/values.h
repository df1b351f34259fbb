// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: fields of descriptors as the catalogue holds them.
#pragma once

#include <sivane/catalogue/network.h>
#include <sivane/catalogue/program.h>
#include <sivane/catalogue/times.h>
#include <sivane/charset/charset.h>
#include <sivane/descriptors/descriptor_set.h>

#include <algorithm>
#include <string>
#include <vector>

namespace sivane::catalogue {

/// A code of a language or country; what is no letter becomes "?", since it comes from the air.
std::string code_text(char const* code);

/// Part of a URI; bytes that it may not have become "%E9", since it comes from the air.
std::string uri_text(std::string const& bytes);

/// That the loop tells, of the first descriptor; empty where it tells none (ETSI TS 102 323, 6.3.3).
std::string default_authority_of(DescriptorSet const& set);

/// Rising, each once.
template <class Item>
void make_unique(std::vector<Item>& items) {
  std::sort(items.begin(), items.end());
  items.erase(std::unique(items.begin(), items.end()), items.end());
  items.shrink_to_fit();
}

std::vector<LocalTimeOffset> local_times_of(DescriptorSet const& set);

std::vector<ConditionalAccess> access_of(std::vector<DescriptorCa> const& descriptors);

/// The systems of the CA descriptors and CA identifier descriptors of a loop, rising, each once.
std::vector<int> ca_systems_of(DescriptorSet const& set, std::vector<DescriptorCa> const& more = {});

std::vector<LocalName> names_of(std::vector<MultilingualNameInfo> const& names, charset::Converter& text);

}  // namespace sivane::catalogue
