// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/version_measures.h"

#include <algorithm>

#include "check/subject_texts.h"
#include "check/table_rules.h"
#include "text/hexadecimal.h"

namespace inspect {

namespace {

constexpr int versions = 32;
constexpr int sections_of_segment = 8;
constexpr int tables_of_schedule = 16;
constexpr std::uint64_t enough_cycles = 3;

/// Whether it is not a few steps forward, over the end of the range.
bool goes_back(int from, int to) { return (to - from + versions) % versions > versions / 2; }

}  // namespace

bool VersionMeasures::take(Observation const& observation) {
  SectionSight const& section = observation.section;
  if (!section.is_long || !section.is_current) return false;
  SubTable const table = sub_table_of(observation);
  auto found = versions_.find(table);
  if (found == versions_.end() && versions_.size() >= most_sub_tables) return false;
  if (found == versions_.end()) found = versions_.try_emplace(table).first;
  Version& version = found->second;
  if (section.has_changed) {
    findings_.add(Measure::changed_content, table_text(observation.pid, section, section.number),
                  observation.place, "version " + std::to_string(section.version));
  }
  bool const is_new = version.number != section.version;
  if (is_new) begin_version(version, observation);
  version.last_section = section.last_number;
  version.last_table = section.last_table;
  ++version.sections[section.number];
  if (is_schedule(section.table_id))
    version.segments[section.number / sections_of_segment] = section.segment_last_number;
  return is_new;
}

void VersionMeasures::begin_version(Version& version, Observation const& observation) {
  SectionSight const& section = observation.section;
  if (version.number >= 0) {
    judge(sub_table_of(observation), version, observation.place);
    if (goes_back(version.number, section.version)) {
      findings_.add(Measure::version_back, table_text(observation.pid, section), observation.place,
                    "from " + std::to_string(version.number) + " to " + std::to_string(section.version));
    }
  }
  version = {};
  version.number = section.version;
  version.first = observation.place;
}

/// A section that is to come: of a segment those up to its last one.
bool VersionMeasures::is_wanted(SubTable const& table, Version const& version, int section) const {
  if (!is_schedule(table.table_id)) return true;
  auto const segment = version.segments.find(section / sections_of_segment);
  return segment != version.segments.end() && section <= segment->second;
}

bool VersionMeasures::has_come_round(Version const& version) {
  return std::ranges::all_of(version.sections,
                             [](auto const& section) { return section.second >= enough_cycles; });
}

/// Those of later days come less often than those that have come.
bool VersionMeasures::is_due(SubTable const& table, int section, Version const& version,
                             Place const& now) const {
  TableRule const* const rule = is_schedule(table.table_id) ? rule_of(table.pid, table.table_id) : nullptr;
  if (rule == nullptr || now.ticks < 0 || version.first.ticks < 0) return true;
  std::int64_t const limit =
      longest_interval(*rule, table.table_id, section, tables_.counts_as_terrestrial());
  return now.ticks - version.first.ticks > limit;
}

/// A pair of present and following has a measure of its own.
void VersionMeasures::judge(SubTable const& table, Version const& version, Place const& now) {
  if (!has_come_round(version) || is_present_following(table.table_id)) return;
  for (int section = 0; section <= version.last_section; ++section) {
    if (version.sections.contains(section) || !is_wanted(table, version, section)) continue;
    if (!is_due(table, section, version, now)) continue;
    findings_.add(Measure::missing_section, table_text(table.pid, as_section(table)), version.first,
                  "section " + std::to_string(section) + " of 0 to " + std::to_string(version.last_section));
  }
  if (is_schedule(table.table_id)) judge_segments(table, version, now);
}

/// Segments that have passed may be left out at the front of the first table.
void VersionMeasures::judge_segments(SubTable const& table, Version const& version, Place const& now) {
  bool const is_first_table = table.table_id % tables_of_schedule == 0;
  int const begin = is_first_table ? version.segments.begin()->first : 0;
  for (int segment = begin; segment <= version.last_section / sections_of_segment; ++segment) {
    if (version.segments.contains(segment)) continue;
    if (!is_due(table, segment * sections_of_segment, version, now)) continue;
    findings_.add(Measure::missing_segment, table_text(table.pid, as_section(table)), version.first,
                  "segment " + std::to_string(segment));
  }
}

/// Up to the next one that came, so that each is told once.
void VersionMeasures::judge_tables_behind(SubTable const& table, Version const& version, Place const& now) {
  bool const is_full = versions_.size() >= most_sub_tables;  // and it may have come all the same
  if (is_full || !is_schedule(table.table_id) || !has_come_round(version)) return;
  int const end_of_kind = (table.table_id / tables_of_schedule + 1) * tables_of_schedule;
  int const last = std::min(version.last_table, end_of_kind - 1);
  SubTable next = table;
  while (++next.table_id <= last && !versions_.contains(next)) {
    if (!is_due(next, 0, version, now)) continue;
    findings_.add(Measure::missing_table, table_text(next.pid, as_section(next)), version.first,
                  "last_table_id is " + c_hexadecimal(version.last_table, 1));
  }
}

void VersionMeasures::finish(Place const& end) {
  for (auto const& [table, version] : versions_) {
    judge(table, version, end);
    judge_tables_behind(table, version, end);
  }
}

}  // namespace inspect
