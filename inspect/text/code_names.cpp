// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/code_names.h"

#include <sivane/descriptors/extended/audio.h>
#include <sivane/registry/codes.h>
#include <sivane/registry/registry.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "text/names.h"

namespace inspect {

namespace {

std::string or_nothing(char const* text) { return text == nullptr ? "" : text; }

template <auto name>
std::string by_standard(int code) {
  return or_nothing(name(code));
}

/// A number that is reserved has no name; the lists have some that were assigned since.
template <auto lookup>
std::string by_registry(int id) {
  std::string name = registered_name(lookup, id);
  return name.starts_with("Reserved") ? "" : name;
}

std::string classification(int code) {
  char const* const text = sivane::DescriptorSupplementaryAudio::get_editorial_classification_text(code);
  return text == std::string_view("<unknown>") ? "" : text;
}

struct Row {
  std::string_view member;
  std::string (*text)(int code);
};

constexpr auto original_network = by_registry<sivane::get_original_network_id>;
constexpr auto ca_system = by_registry<sivane::get_ca_system_id>;

constexpr Row rows[] = {
    {"stream_type", by_standard<sivane::stream_type_name>},
    {"service_type", by_standard<sivane::service_type_name>},
    {"editorial_classification", classification},
    {"original_network_id", original_network},
    {"new_original_network_id", original_network},
    {"old_original_network_id", original_network},
    {"xait_original_network_id", original_network},
    {"invariant_ts_onid", original_network},
    {"network_id", original_network},  // of a stream in a NIT or BAT
    {"sys_id", ca_system},
    {"CA_system_id", ca_system},
    {"CA_system_ID", ca_system},
    {"bouquet_id", by_registry<sivane::get_bouquet_id>},
    {"private_data_specifier", by_registry<sivane::get_private_data_id>},
    {"data_broadcast_id", by_registry<sivane::get_data_broadcast_id>},
    {"organisation_id", by_registry<sivane::get_mhp_id>},
};

constexpr std::string_view suffix = "_name";
constexpr std::string_view context = "context_id";
// Of several members; the name stands behind the last of them.
constexpr std::string_view genre = "genre_name", coding = "coding_name";

std::string context_name(std::string_view table_class, int id) {
  if (table_class == "Nit") return by_registry<sivane::get_network_id>(id);
  if (table_class == "Bat") return by_registry<sivane::get_bouquet_id>(id);
  return {};
}

}  // namespace

CodeNames::Name CodeNames::behind(std::string_view member, std::int64_t value) {
  int const code = static_cast<std::int32_t>(value);  // as the lookups take 32 bits
  if (member == "content_nibble_level1") genre_group_ = code;
  if (member == "stream_content_ext") stream_content_ext_ = code;
  if (member == "stream_content") stream_content_ = code;
  if (member == "content_nibble_level2")
    return {std::string(genre), or_nothing(sivane::genre_name(genre_group_, code))};
  if (member == "component_type") {
    int const content = std::exchange(stream_content_, -1);
    return {std::string(coding),
            or_nothing(sivane::component_coding_name(content, stream_content_ext_, code))};
  }
  std::string name = std::string(member).append(suffix);
  if (member == context) return {std::move(name), context_name(table_class_, code)};
  auto const row = std::ranges::find(rows, member, &Row::member);
  return {std::move(name), row == std::end(rows) ? "" : row->text(code)};
}

bool is_code_name(std::string_view member) {
  if (member == genre || member == coding) return true;
  if (!member.ends_with(suffix)) return false;
  member.remove_suffix(suffix.size());
  return member == context || std::ranges::find(rows, member, &Row::member) != std::end(rows);
}

}  // namespace inspect
