// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/extended_reading.h>
#include <sivane/catalogue/values.h>

#include <algorithm>

namespace sivane::catalogue {

std::string code_text(char const* code) {
  std::string text(code);
  for (char& c : text) {
    bool const is_letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (!is_letter) c = '?';
  }
  return text;
}

std::string uri_text(std::string const& bytes) {
  constexpr char const* digits = "0123456789ABCDEF";
  std::string text;
  for (char const c : bytes) {
    auto const byte = static_cast<unsigned char>(c);
    if (c > ' ' && c < 0x7F) {
      text += c;
    } else {
      text.append({'%', digits[byte >> 4], digits[byte & 0x0F]});
    }
  }
  return text;
}

std::string default_authority_of(DescriptorSet const& set) {
  auto const descriptor = find_extended<DescriptorDefaultAuthority>(set);
  return descriptor ? uri_text(descriptor->default_authority) : std::string();
}

std::vector<LocalTimeOffset> local_times_of(DescriptorSet const& set) {
  std::vector<LocalTimeOffset> local;
  for (auto const& descriptor : set.get_local_time_offset_descriptors()) {
    for (auto const& told : descriptor.localtime) {
      auto const east_of_utc = [&told](TimeOffset const& offset) {
        std::chrono::minutes const size =
            std::chrono::hours(offset.hour) + std::chrono::minutes(offset.minute);
        return told.local_time_offset_polarity == 0 ? size : -size;
      };
      local.push_back({code_text(told.country_code), told.country_region_id,
                       east_of_utc(told.local_time_offset), time_of(told.time_of_change),
                       east_of_utc(told.next_time_offset)});
    }
  }
  local.shrink_to_fit();
  return local;
}

std::vector<ConditionalAccess> access_of(std::vector<DescriptorCa> const& descriptors) {
  std::vector<ConditionalAccess> access;
  access.reserve(descriptors.size());
  for (DescriptorCa const& descriptor : descriptors) access.push_back({descriptor.sys_id, descriptor.pid});
  return access;
}

std::vector<int> ca_systems_of(DescriptorSet const& set, std::vector<DescriptorCa> const& more) {
  std::vector<int> systems;
  for (auto const* descriptors : {&set.get_CA_descriptors(), &more}) {
    for (DescriptorCa const& descriptor : *descriptors) systems.push_back(descriptor.sys_id);
  }
  for (auto const& descriptor : set.get_CA_identifiers_descriptors()) {
    for (auto const& system : descriptor.CA_system_id) systems.push_back(system.CA_system_id);
  }
  make_unique(systems);
  return systems;
}

std::vector<LocalName> names_of(std::vector<MultilingualNameInfo> const& names, charset::Converter& text) {
  std::vector<LocalName> local;
  local.reserve(names.size());
  for (auto const& name : names) {
    local.push_back({code_text(name.ISO_639_language_code), text.utf8(name.name), ""});
  }
  return local;
}

}  // namespace sivane::catalogue
