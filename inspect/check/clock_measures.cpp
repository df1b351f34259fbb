// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/clock_measures.h"

#include "check/stream_clock.h"
#include "check/subject_texts.h"

namespace inspect {

namespace {

constexpr std::int64_t longest_between_pcrs = 100 * ticks_of_millisecond;
constexpr std::int64_t longest_between_pts = 700 * ticks_of_millisecond;
constexpr int no_pcr_pid = 0x1FFF;

std::string gap_text(std::int64_t ticks) { return milliseconds_text(ticks) + " after the one before"; }

std::string wait_text(std::int64_t ticks) { return "none in the last " + milliseconds_text(ticks); }

}  // namespace

void ClockMeasures::take_pcr(Observation const& observation) {
  has_pcrs_ = true;
  Place const& place = observation.place;
  auto const [entry, is_new] =
      last_pcr_.try_emplace(observation.pid, Pcr{observation.value, place.ticks, false});
  Pcr const before = entry->second;
  entry->second = {observation.value, place.ticks, false};
  if (is_new || place.ticks < 0 || before.ticks < 0) return;
  std::int64_t const passed = place.ticks - before.ticks;
  if (passed > longest_between_pcrs)
    findings_.add(Measure::pcr_repetition, pid_text(observation.pid), place, gap_text(passed));
  if (before.is_first || observation.is_announced) return;
  std::int64_t const difference = pcr_difference(before.value, observation.value);
  if (!is_pcr_jump(difference, passed)) return;
  findings_.add(Measure::pcr_discontinuity, pid_text(observation.pid), place,
                "PCR goes on by " + std::to_string(difference / ticks_of_millisecond) + " ms in " +
                    milliseconds_text(passed));
}

void ClockMeasures::take_pts(Observation const& observation) {
  std::int64_t const now = observation.place.ticks;
  if (now < 0) return;
  auto const [entry, is_new] = last_pts_.try_emplace(observation.pid, now);
  std::int64_t const passed = now - entry->second;
  entry->second = now;
  if (passed > longest_between_pts)
    findings_.add(Measure::pts, pid_text(observation.pid), observation.place, gap_text(passed));
}

void ClockMeasures::expect_clocks(Place const& now) {
  for (auto const& [number, program] : tables_.programs()) {
    if (program.pcr_pid >= 0 && program.pcr_pid != no_pcr_pid)
      last_pcr_.try_emplace(program.pcr_pid, Pcr{0, now.ticks, true});
  }
}

void ClockMeasures::finish(Place const& end) {
  if (end.ticks < 0) return;
  for (auto const& [pid, last] : last_pcr_) {
    if (last.ticks >= 0 && end.ticks - last.ticks > longest_between_pcrs)
      findings_.add(Measure::pcr_repetition, pid_text(pid), end, wait_text(end.ticks - last.ticks));
  }
  for (auto const& [pid, last] : last_pts_) {
    if (end.ticks - last > longest_between_pts)
      findings_.add(Measure::pts, pid_text(pid), end, wait_text(end.ticks - last));
  }
}

}  // namespace inspect
