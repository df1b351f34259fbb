// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "diff/list_pairs.h"

#include <algorithm>
#include <initializer_list>
#include <map>

namespace inspect {

namespace {

/// A field that tells items apart, and what people call it.
struct Id {
  char const* field;
  char const* word;
};

constexpr Id ids_of_entries[] = {{"sid", "program"},
                                 {"service_id", "service"},
                                 {"event_id", "event"},
                                 {"elementary_pid", "PID"},
                                 {"stream_id", "stream"},
                                 {"network_id", "network"},
                                 {"transport_stream_id", "stream"},
                                 {"original_network_id", "network"},
                                 {"application_identifer", "application"},
                                 {"cell_id", "cell"},
                                 {"cell_id_extension", "extension"},
                                 {"logical_cell_id", "cell"},
                                 {"component_tag", "component"},
                                 {"CA_system_id", "CA system"},
                                 {"country_code", ""},
                                 {"country_region_id", "region"},
                                 {"language_code", ""},
                                 {"ISO_639_language_code", ""}};

/// What stands beside the name of a descriptor where several may be.
constexpr Id ids_of_descriptors[] = {{"component_tag", "component"},
                                     {"descriptor_number", "part"},
                                     {"language_code", ""},
                                     {"ISO_639_language_code", ""}};

std::string plain_text(JsonValue const& value) {
  return value.IsString() ? std::string(string_of(value)) : text_of(value);
}

template <std::size_t N>
std::string label_of(JsonValue const& item, Id const (&ids)[N], std::string label) {
  for (Id const& id : ids) {
    JsonValue const* const value = member_of(item, id.field);
    if (value == nullptr || value->IsArray()) continue;
    for (std::string const& word : {std::string(id.word), plain_text(*value)}) {
      if (!word.empty()) label += (label.empty() ? "" : " ") + word;
    }
  }
  return label;
}

/// What identifies an item; empty where nothing does.
std::string identity_of(std::string_view list, JsonValue const& item) {
  if (!item.IsObject()) return "";
  JsonValue const* const name = member_of(item, "name");
  if (list == "descriptors" && name != nullptr && name->IsString())
    return label_of(item, ids_of_descriptors, std::string(string_of(*name)));
  return label_of(item, ids_of_entries, "");
}

/// The name that a service or an event has in one of its descriptors, in quotes behind a blank.
std::string name_in(JsonValue const& item) {
  JsonValue const* const descriptors = item.IsObject() ? member_of(item, "descriptors") : nullptr;
  if (descriptors == nullptr || !descriptors->IsArray()) return "";
  for (JsonValue const& descriptor : descriptors->GetArray()) {
    for (char const* const field : {"service_name", "event_name"}) {
      JsonValue const* const name = descriptor.IsObject() ? member_of(descriptor, field) : nullptr;
      if (name != nullptr && name->IsString()) return ' ' + text_of(*name);
    }
  }
  return "";
}

using Values = std::vector<JsonValue const*>;

/// Takes out of both what both have.
void drop_equal(Values& items, Values& others) {
  std::map<std::string, int> of_others, of_both;
  for (JsonValue const* const other : others) ++of_others[text_of(*other)];
  auto const takes_one = [](std::map<std::string, int>& counts, std::string const& text) {
    auto const found = counts.find(text);
    return found != counts.end() && found->second-- > 0;
  };
  std::erase_if(items, [&](JsonValue const* item) {
    std::string const text = text_of(*item);
    bool const is_in_both = takes_one(of_others, text);
    if (is_in_both) ++of_both[text];
    return is_in_both;
  });
  std::erase_if(others, [&](JsonValue const* other) { return takes_one(of_both, text_of(*other)); });
}

}  // namespace

std::vector<Pair> pairs_of(std::string_view list, JsonValue const& a, JsonValue const& b) {
  std::map<std::string, std::pair<Values, Values>> by_identity;
  for (JsonValue const& item : a.GetArray()) by_identity[identity_of(list, item)].first.push_back(&item);
  for (JsonValue const& item : b.GetArray()) by_identity[identity_of(list, item)].second.push_back(&item);
  std::vector<Pair> pairs;
  for (auto& [identity, values] : by_identity) {
    auto& [left, right] = values;
    drop_equal(left, right);
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
      JsonValue const* const one = i < left.size() ? left[i] : nullptr;
      JsonValue const* const other = i < right.size() ? right[i] : nullptr;
      pairs.push_back({identity + name_in(one != nullptr ? *one : *right[i]), one, other});
    }
  }
  return pairs;
}

}  // namespace inspect
