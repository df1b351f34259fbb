// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/stream_check.h"

#include <utility>

#include "check/content_measures.h"
#include "check/subject_texts.h"
#include "input/handle.h"

namespace inspect {

namespace {

using Kind = Observation::Kind;

constexpr int pids_of_tables[] = {0x00, 0x01, 0x10, 0x11, 0x12, 0x13, 0x14};
constexpr std::size_t most_waiting = 16384;                // observations; beyond them no clock is waited for
constexpr std::int64_t patience_for_pcrs = 2'000'000'000;  // nanoseconds of live input

bool is_carousel(int table_id) { return table_id == 0x3B || table_id == 0x3C; }
bool has_crc_measure(int table_id) { return table_id != 0x74; }

}  // namespace

StreamCheck::StreamCheck()
    : pid_watch_(waiting_),
      section_watch_(waiting_),
      clocks_(findings_, tables_),
      references_(findings_, tables_),
      repetition_(findings_, tables_),
      versions_(findings_, tables_) {
  for (int const pid : pids_of_tables) {
    pid_watch_.look_for_sections(pid);
    section_watch_.watch(pid);
  }
}

void StreamCheck::take(sivane::PacketRun const& run) {
  auto const stride = static_cast<std::size_t>(run.stride);
  for (int i = 0; i < run.count; ++i) {
    unsigned char const* const packet = run.first + static_cast<std::size_t>(i) * stride;
    end_.offset = run.offset + static_cast<std::size_t>(i) * stride;
    if (pid_watch_.take(packet, end_)) section_watch_.take(packet, end_);
    ++end_.packet;
    if (waiting_.size() != looked_at_) keep_waiting_short();
  }
  if (run.count > 0) end_.offset += stride;
}

/// Time is known to the latest PCR of the clock; where there is none for long it is made up.
void StreamCheck::keep_waiting_short() {
  bool is_known_further = false;
  for (; looked_at_ < waiting_.size(); ++looked_at_) {
    Observation const& seen = waiting_[looked_at_];
    if (seen.kind == Kind::pcr && clock_.take_pcr(seen.pid, seen.place.offset, seen.value, seen.is_announced))
      is_known_further = true;
    if (seen.kind == Kind::section) follow(seen);
  }
  if (!is_known_further && waiting_.size() >= most_waiting) {
    clock_.run_on_to(end_.offset);
    is_known_further = true;
  }
  if (is_known_further) judge_what_waits();
}

void StreamCheck::take_skipped(SkippedRange const& range) {
  Place const place{end_.packet, range.offset, -1, end_.arrival};
  std::uint64_t const lost = range.sync_losses - std::exchange(sync_losses_, range.sync_losses);
  // Two wrong ones in a row are what loses the synchronisation.
  std::uint64_t const wrong =
      range.sync_byte_errors - std::exchange(sync_byte_errors_, range.sync_byte_errors) - 2 * lost;
  for (std::uint64_t i = 0; i < lost; ++i) waiting_.push_back({Kind::sync_loss, -1, place, range.size});
  for (std::uint64_t i = 0; i < wrong; ++i) waiting_.push_back({Kind::sync_byte, -1, place});
}

void StreamCheck::take_arrival(std::int64_t nanoseconds) {
  if (first_arrival_ < 0) first_arrival_ = nanoseconds;
  end_.arrival = nanoseconds;
  if (clock_.is_by_pcr() || nanoseconds - first_arrival_ < patience_for_pcrs) return;
  clock_.take_arrival(end_.offset, nanoseconds - first_arrival_);
  judge_what_waits();
}

Place StreamCheck::timed(Place place) const {
  place.ticks = clock_.ticks_at(place.offset);
  return place;
}

void StreamCheck::judge_what_waits() {
  for (Observation& seen : waiting_) {
    seen.place = timed(seen.place);
    judge(seen);
  }
  waiting_.clear();
  looked_at_ = 0;
  judge_spans();
}

void StreamCheck::judge_spans() {
  for (PidWatch::Span const& span : pid_watch_.take_spans()) {
    references_.take_span({span.pid, span.packets,
                           timed({span.first_packet, span.first_offset, -1, end_.arrival}),
                           clock_.ticks_at(span.last_offset)});
  }
}

void StreamCheck::judge(Observation const& seen) {
  switch (seen.kind) {
    case Kind::sync_loss:
      return findings_.add(Measure::ts_sync_loss, "stream", seen.place,
                           std::to_string(seen.value) + " bytes are no packet");
    case Kind::sync_byte:
      return findings_.add(Measure::sync_byte, "stream", seen.place);
    case Kind::transport_error:
      return findings_.add(Measure::transport, pid_text(seen.pid), seen.place);
    case Kind::continuity:
      return findings_.add(Measure::continuity_count, pid_text(seen.pid), seen.place,
                           seen.value > 0 ? std::to_string(seen.value) + " missing" : "more than twice");
    case Kind::scrambled:
      clocks_.take_scrambled(seen.pid);
      return references_.take_scrambled(seen);
    case Kind::pcr:
      return clocks_.take_pcr(seen);
    case Kind::pts:
      return clocks_.take_pts(seen);
    case Kind::wrong_crc: {
      auto const table_id = static_cast<int>(seen.value);
      return findings_.add(has_crc_measure(table_id) ? Measure::crc : Measure::failed_section,
                           table_text(seen.pid, {.table_id = table_id}), seen.place, "wrong CRC");
    }
    case Kind::section:
      return judge_section(seen);
  }
}

void StreamCheck::judge_section(Observation const& seen) {
  if (versions_.take(seen)) repetition_.forget_version(sub_table_of(seen));
  repetition_.take(seen, clock_.ticks_at(seen.section.begin));
  judge_content(findings_, seen);
  if (!tables_.take(seen)) return;
  references_.follow_tables(seen.place);
  repetition_.follow_tables(seen.place);
  clocks_.expect_clocks(seen.place);
}

/// Watches the PIDs that a table names.
void StreamCheck::follow(Observation const& seen) {
  if (!coming_.take(seen)) return;
  for (auto const& [number, program] : coming_.programs()) {
    for (int const pid : program.timed_pids) pid_watch_.look_for_time_stamps(pid);
  }
  auto const& content = seen.section.content;
  for (Handle const& handle : sivane::registrations_named_by(content.data(), content.size())) {
    if (is_carousel(handle.table_id)) continue;
    if (pid_watch_.look_for_sections(handle.pid)) section_watch_.watch(handle.pid);
  }
}

void StreamCheck::finish() {
  clock_.run_on_to(end_.offset);
  judge_what_waits();
  end_ = timed(end_);
  versions_.finish(end_);
  repetition_.finish(end_);
  clocks_.finish(end_);
  references_.finish(end_);
}

std::string StreamCheck::reservation(MeasureRow const& row) const {
  bool const is_reference = row.measure == Measure::unreferenced_pid;
  if (row.need == Need::more) return "not measured: " + std::string(row.limit);
  if (is_reference && !tables_.has_all_maps()) return "not measured: the PAT or a program map is missing";
  if (has_clock() || row.need == Need::nothing) return {};
  if (row.need == Need::time) return "not measured: the stream has no clock (PCR)";
  return is_reference ? "measured by the whole stream, since it has no clock (PCR)"
                      : "measured in part: without a clock (PCR) there are no intervals";
}

}  // namespace inspect
