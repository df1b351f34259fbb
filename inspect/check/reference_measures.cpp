// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/reference_measures.h"

#include <algorithm>
#include <utility>

#include "check/subject_texts.h"

namespace inspect {

namespace {

constexpr std::int64_t longest_absence = 5 * ticks_of_second;
constexpr std::int64_t time_to_be_named = ticks_of_second / 2;
constexpr std::int64_t time_for_a_cat = 2 * ticks_of_second;
constexpr int first_free_pid = 0x20;
constexpr int null_pid = 0x1FFF;

bool wants_name(int pid) { return pid >= first_free_pid && pid != null_pid; }

}  // namespace

void ReferenceMeasures::take_span(PidSpan const& span) {
  auto const [entry, is_new] = present_.try_emplace(span.pid, Presence{span.first});
  Presence& presence = entry->second;
  if (is_new) ++unjudged_;
  auto const expected = expected_since_.find(span.pid);
  if (expected != expected_since_.end() && span.first.ticks >= 0) {
    std::int64_t const since = std::max(presence.last_ticks, expected->second);
    if (since >= 0 && span.first.ticks - since > longest_absence) {
      findings_.add(Measure::pid, pid_text(span.pid), span.first,
                    milliseconds_text(span.first.ticks - since) + " without a packet");
    }
  }
  presence.last_ticks = span.last_ticks;
  bool const lost_its_name =
      wants_name(span.pid) && presence.is_judged && !presence.is_reported && !tables_.names(span.pid);
  if (lost_its_name) {
    presence = {span.first, span.last_ticks};
    ++unjudged_;
  }
  judge_references(span.first.ticks);
}

/// Before all program maps have come nobody can say what they name.
void ReferenceMeasures::judge_references(std::int64_t now) {
  if (unjudged_ == 0 || now < 0 || !tables_.has_all_maps()) return;
  for (auto& [pid, presence] : present_) {
    if (!presence.is_judged && presence.first.ticks >= 0 && now - presence.first.ticks > time_to_be_named)
      judge_reference(pid, presence);
  }
}

void ReferenceMeasures::judge_reference(int pid, Presence& presence) {
  if (!presence.is_judged) --unjudged_;
  presence.is_judged = true;
  if (!wants_name(pid) || tables_.names(pid) || presence.is_reported) return;
  presence.is_reported = true;
  findings_.add(Measure::unreferenced_pid, pid_text(pid), presence.first);
}

void ReferenceMeasures::take_scrambled(Observation const& observation) {
  if (!first_scrambled_) first_scrambled_ = observation.place;
  if (observation.pid == 0) findings_.add(Measure::pat, pid_text(0), observation.place, "scrambled");
  for (auto const& [number, program] : tables_.programs()) {
    if (program.map_pid != observation.pid) continue;
    findings_.add(Measure::pmt, pid_text(observation.pid), observation.place, "scrambled");
    return;
  }
}

void ReferenceMeasures::follow_tables(Place const& now) {
  std::map<int, std::int64_t> const before = std::exchange(expected_since_, {});
  for (auto const& [number, program] : tables_.programs()) {
    std::set<int> wanted = program.timed_pids;
    if (program.pcr_pid >= 0 && program.pcr_pid != null_pid) wanted.insert(program.pcr_pid);
    for (int const pid : wanted) {
      auto const known = before.find(pid);
      expected_since_[pid] = known != before.end() ? known->second : now.ticks;
    }
  }
}

void ReferenceMeasures::judge_absence(int pid, Place const& end) {
  if (pid == null_pid || pid < 0) return;
  auto const found = present_.find(pid);
  if (found == present_.end())
    findings_.add(Measure::missing_pid, pid_text(pid), end, "no packet in the stream");
  auto const expected = expected_since_.find(pid);
  if (expected == expected_since_.end() || end.ticks < 0 || expected->second < 0) return;
  std::int64_t const since =
      std::max(found != present_.end() ? found->second.last_ticks : -1, expected->second);
  if (end.ticks - since > longest_absence)
    findings_.add(Measure::pid, pid_text(pid), end,
                  milliseconds_text(end.ticks - since) + " without a packet");
}

void ReferenceMeasures::judge_cat(Place const& end) {
  if (!first_scrambled_ || tables_.has_cat() || first_scrambled_->ticks < 0) return;
  if (end.ticks - first_scrambled_->ticks > time_for_a_cat)
    findings_.add(Measure::cat, pid_text(1), *first_scrambled_, "scrambled packets, and no CAT");
}

void ReferenceMeasures::finish(Place const& end) {
  judge_references(end.ticks);
  if (end.ticks < 0 && tables_.has_all_maps()) {
    for (auto& [pid, presence] : present_) judge_reference(pid, presence);
  }
  std::set<int> named;
  for (auto const& [number, program] : tables_.programs()) {
    named.insert(program.map_pid);
    named.insert(program.pcr_pid);
    named.insert(program.timed_pids.begin(), program.timed_pids.end());
    named.insert(program.other_pids.begin(), program.other_pids.end());
  }
  for (int const pid : named) judge_absence(pid, end);
  judge_cat(end);
}

}  // namespace inspect
