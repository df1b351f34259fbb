// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "diff/snapshot.h"

namespace inspect {

namespace {

constexpr int sections_a_segment = 8;

/// The last section of the segment that a section is in, 8 sections each (ETSI EN 300 468, 5.2.4); of other
/// tables the last of all.
int last_of_segment(TableVersion const& table, int first) {
  auto const found = table.sections.lower_bound(first);
  if (found == table.sections.end() || found->first >= first + sections_a_segment) return -1;
  rapidjson::Document const section = object_of(found->second);
  if (member_of(section, "segment_last_section_number") == nullptr) return table.last_section;
  return number_of(section, "segment_last_section_number");
}

bool has_all(TableVersion const& table, int first, int last) {
  for (int number = first; number <= last; ++number) {
    if (!table.sections.contains(number)) return false;
  }
  return true;
}

}  // namespace

bool TableVersion::is_complete() const {
  for (int first = 0; first <= last_section; first += sections_a_segment) {
    int const last = last_of_segment(*this, first);
    if (last < first || !has_all(*this, first, last)) return false;
  }
  return true;
}

void Snapshot::take(int pid, std::string_view class_name, std::string_view table) {
  if (class_name == "Tdt") return;  // the time alone
  rapidjson::Document const section = object_of(table);
  Versions& versions = tables_[key_of(class_name, pid, section)];
  TableVersion& latest = versions.latest;
  int const version = number_of(section, "version_number");
  if (latest.version != version) latest = {version, 0, {}};
  std::string& held = latest.sections[number_of(section, "section_number")];
  if (held == table) return;
  held = table;
  latest.last_section = number_of(section, "last_section_number");
  if (latest.is_complete()) versions.whole = latest;
}

}  // namespace inspect
