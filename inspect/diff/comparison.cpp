// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "diff/comparison.h"

#include <algorithm>
#include <initializer_list>

#include "diff/list_pairs.h"

namespace inspect {

namespace {

/// Whether a field follows from others, or tells when the table was sent.
bool is_left_out(std::string_view name) {
  constexpr std::string_view names[] = {"crc32",    "section_number", "last_section_number",
                                        "UTC_time", "last_table_id",  "segment_last_section_number"};
  return name.ends_with("length") || name.ends_with("_len") ||
         std::ranges::find(names, name) != std::end(names);
}

/// Goes through two versions of a table together.
class TableComparison {
 public:
  TableComparison(std::string const& table, std::vector<Difference>& found) : table_(table), found_(found) {}

  void compare_objects(JsonValue const& a, JsonValue const& b) {
    for (auto const& member : a.GetObject()) {
      if (!is_left_out(string_of(member.name)))
        compare_members(string_of(member.name), member.value, member_of(b, string_of(member.name)));
    }
    for (auto const& member : b.GetObject()) {
      bool const is_new = member_of(a, string_of(member.name)) == nullptr;
      if (is_new && !is_left_out(string_of(member.name)))
        at(string_of(member.name), [&] { add(nullptr, &member.value); });
    }
  }

 private:
  void compare_members(std::string_view name, JsonValue const& a, JsonValue const* b) {
    if (b != nullptr && a.IsArray() && b->IsArray()) return compare_lists(name, a, *b);
    at(name, [&] { compare_values(&a, b); });
  }

  void compare_values(JsonValue const* a, JsonValue const* b) {
    if (a != nullptr && b != nullptr && a->IsObject() && b->IsObject()) return compare_objects(*a, *b);
    if (a == nullptr || b == nullptr || text_of(*a) != text_of(*b)) add(a, b);
  }

  /// Items are named by what they are; where nothing tells, by their list.
  void compare_lists(std::string_view list, JsonValue const& a, JsonValue const& b) {
    for (Pair const& pair : pairs_of(list, a, b)) {
      at(pair.label.empty() ? list : pair.label, [&] { compare_values(pair.a, pair.b); });
    }
  }

  template <class Step>
  void at(std::string_view name, Step step) {
    path_.emplace_back(name);
    step();
    path_.pop_back();
  }

  void add(JsonValue const* a, JsonValue const* b) {
    found_.push_back({table_, path_, a == nullptr ? "" : text_of(*a), b == nullptr ? "" : text_of(*b)});
  }

  std::string const& table_;
  std::vector<std::string> path_;
  std::vector<Difference>& found_;
};

/// The sections as one object; only those that `others` has too, if it is given.
rapidjson::Document merged(TableVersion const& table, TableVersion const* others) {
  rapidjson::Document whole(rapidjson::kObjectType);
  for (auto const& [number, text] : table.sections) {
    if (others != nullptr && !others->sections.contains(number)) continue;
    rapidjson::Document const section = object_of(text);
    for (auto const& member : section.GetObject()) {
      JsonValue value(member.value, whole.GetAllocator());
      if (!whole.HasMember(member.name)) {
        whole.AddMember(JsonValue(member.name, whole.GetAllocator()), value, whole.GetAllocator());
      } else if (JsonValue& held = whole[member.name]; held.IsArray() && value.IsArray()) {
        for (JsonValue& item : value.GetArray()) held.PushBack(item, whole.GetAllocator());
      }
    }
  }
  return whole;
}

void compare_tables(std::string const& label, TableVersion const& a, TableVersion const& b,
                    Differences& differences) {
  bool const are_whole = a.is_complete() && b.is_complete();
  if (!are_whole) differences.partly_compared.push_back(label);
  if (a.sections == b.sections || (!are_whole && a.version != b.version)) return;
  rapidjson::Document const of_a = merged(a, are_whole ? nullptr : &b);
  rapidjson::Document const of_b = merged(b, are_whole ? nullptr : &a);
  TableComparison(label, differences.found).compare_objects(of_a, of_b);
}

/// A table that one input alone has; what was cut off there is no difference.
void add_table(std::string const& label, TableVersion const& table, std::string Difference::*side,
               Differences& differences) {
  if (!table.is_complete()) return differences.partly_compared.push_back(label);
  Difference difference{label, {}, "", ""};
  difference.*side = text_of(merged(table, nullptr));
  differences.found.push_back(difference);
}

}  // namespace

Differences compare(Snapshot const& a, Snapshot const& b) {
  Differences differences;
  for (auto const& [key, versions] : a.tables()) {
    auto const other = b.tables().find(key);
    if (other == b.tables().end()) {
      add_table(key.label, versions.shown(), &Difference::a, differences);
    } else {
      compare_tables(key.label, versions.shown(), other->second.shown(), differences);
    }
  }
  for (auto const& [key, versions] : b.tables()) {
    if (!a.tables().contains(key)) add_table(key.label, versions.shown(), &Difference::b, differences);
  }
  return differences;
}

}  // namespace inspect
