// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/repetition_measures.h"

#include <algorithm>

#include "check/subject_texts.h"
#include "text/hexadecimal.h"

namespace inspect {

namespace {

constexpr std::int64_t shortest_gap = 25 * ticks_of_millisecond;
constexpr std::uint64_t enough_for_a_pair = 3;
// Every stream has them, and so they are waited for from its start on.
constexpr std::pair<int, int> of_every_stream[] = {
    {0x0000, 0x00}, {0x0010, 0x40}, {0x0011, 0x42}, {0x0014, 0x70}};

/// What all tables of a table id have in common, where any of them will do.
SubTable family_of(SubTable const& table, TableRule const& rule) {
  return rule.by_number ? table : SubTable{table.pid, table.table_id};
}

}  // namespace

RepetitionMeasures::RepetitionMeasures(Findings& findings, StreamTables const& tables)
    : findings_(findings), tables_(tables) {
  for (auto const& [pid, table_id] : of_every_stream) expect({{pid, table_id}, -1}, {.ticks = 0});
}

std::int64_t RepetitionMeasures::limit_of(Repeated const& repeated, TableRule const& rule) const {
  return longest_interval(rule, repeated.table.table_id, repeated.number, tables_.counts_as_terrestrial());
}

std::string RepetitionMeasures::text_of(Repeated const& repeated) const {
  SectionSight section = as_section(repeated.table);
  if (repeated.number < 0) section.is_long = false;  // any of them
  return table_text(repeated.table.pid, section, repeated.number);
}

void RepetitionMeasures::expect(Repeated const& repeated, Place const& now) {
  auto const [entry, is_new] = courses_.try_emplace(repeated);
  Course& course = entry->second;
  course.is_current = true;
  if (!is_new) return;
  course.rule = rule_of(repeated.table.pid, repeated.table.table_id);
  course.last = now.ticks;
}

void RepetitionMeasures::take(Observation const& observation, std::int64_t began) {
  SectionSight const& section = observation.section;
  Misplacement const misplacement = misplacement_of(observation.pid, section.table_id);
  if (misplacement.is_misplaced) {
    findings_.add(misplacement.measure, pid_text(observation.pid), observation.place,
                  "table id " + c_hexadecimal(section.table_id, 1));
    return;
  }
  TableRule const* const rule = rule_of(observation.pid, section.table_id);
  if (rule == nullptr) return;
  if (rule->has_gap) judge_gap(observation, *rule, began);
  if (!section.is_current) return;
  SubTable const table = sub_table_of(observation);
  Repeated const repeated{family_of(table, *rule), rule->by_number ? section.number : -1};
  auto found = courses_.find(repeated);
  if (found == courses_.end() && courses_.size() >= most_sub_tables) return;
  if (found == courses_.end()) found = courses_.try_emplace(repeated).first;
  found->second.rule = rule;
  judge_interval(repeated, found->second, observation.place);
}

void RepetitionMeasures::judge_interval(Repeated const& repeated, Course& course, Place const& now) {
  bool const has_interval = course.last >= 0 && now.ticks >= 0 && course.rule->longest > 0;
  if (has_interval) {
    std::int64_t const interval = now.ticks - course.last;
    if (course.count > 0) course.sum += interval;
    course.longest = std::max(course.longest, interval);
    if (interval > limit_of(repeated, *course.rule)) {
      findings_.add(course.rule->measure, text_of(repeated), now,
                    milliseconds_text(interval) +
                        (course.count > 0 ? " after the one before" : " until the first one"));
    }
  }
  if (course.count++ == 0) course.first = now;
  course.last = now.ticks;
  course.is_current = true;
}

/// From the last byte of a section to the first one of the next (ETSI TS 101 211, 4.4).
void RepetitionMeasures::judge_gap(Observation const& observation, TableRule const& rule,
                                   std::int64_t began) {
  if (last_end_.size() >= most_sub_tables) return;
  std::int64_t const now = observation.place.ticks;
  auto const [entry, is_new] = last_end_.try_emplace(sub_table_of(observation), now);
  std::int64_t const gap = began - entry->second;
  bool const is_known = !is_new && began >= 0 && entry->second >= 0;
  entry->second = now;
  if (!is_known || gap >= shortest_gap) return;
  // A table that has a measure for long intervals of others alone has none for short ones.
  bool const is_of_others = rule.measure == Measure::nit_other || rule.measure == Measure::sdt_other ||
                            rule.measure == Measure::eit_other;
  findings_.add(is_of_others ? Measure::si_repetition : rule.measure,
                table_text(observation.pid, observation.section), observation.place,
                milliseconds_text(std::max<std::int64_t>(gap, 0)) + " behind the section before");
}

void RepetitionMeasures::follow_tables(Place const& now) {
  std::erase_if(courses_, [this](auto const& entry) {
    SubTable const& table = entry.first.table;
    if (table.table_id != 0x02) return false;
    auto const program = tables_.programs().find(table.extension);
    return program == tables_.programs().end() || program->second.map_pid != table.pid;
  });
  for (auto const& [number, program] : tables_.programs()) expect({{program.map_pid, 0x02, number}, 0}, now);
  for (AnnouncedService const& service : tables_.services()) {
    SubTable const table{0x12, 0x4E, service.service, service.transport_stream, service.original_network};
    for (int const section : {0, 1}) expect({table, section}, now);
  }
}

void RepetitionMeasures::forget_version(SubTable const& table) {
  auto entry = courses_.lower_bound({table, -1});
  for (; entry != courses_.end() && entry->first.table == table; ++entry) entry->second.is_current = false;
}

void RepetitionMeasures::finish(Place const& end) {
  judge_present_following(end);
  if (end.ticks < 0) return;
  for (auto& [repeated, course] : courses_) {
    if (course.last < 0 || !course.is_current || course.rule->longest == 0) continue;
    std::int64_t const wait = end.ticks - course.last;
    if (wait <= limit_of(repeated, *course.rule)) continue;
    course.longest = std::max(course.longest, wait);
    findings_.add(course.rule->measure, text_of(repeated), end,
                  "none in the last " + milliseconds_text(wait));
  }
}

/// Where one of both came often enough to know that the other does not.
void RepetitionMeasures::judge_present_following(Place const& end) {
  for (auto const& [repeated, course] : courses_) {
    if (!is_present_following(repeated.table.table_id) || repeated.number > 1 || course.count == 0) continue;
    auto const other = courses_.find({repeated.table, 1 - repeated.number});
    if (other != courses_.end() && other->second.count > 0) continue;
    bool const is_long_ago = end.ticks >= 0 && course.first.ticks >= 0 &&
                             end.ticks - course.first.ticks > 2 * limit_of(repeated, *course.rule);
    if (course.count < enough_for_a_pair && !is_long_ago) continue;
    findings_.add(Measure::eit_pf, table_text(repeated.table.pid, as_section(repeated.table)), course.first,
                  "section " + std::to_string(1 - repeated.number) + " is missing");
  }
}

}  // namespace inspect
