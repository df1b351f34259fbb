// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <vector>

#include "check/clock_measures.h"
#include "check/pid_watch.h"
#include "check/reference_measures.h"
#include "check/repetition_measures.h"
#include "check/section_watch.h"
#include "check/stream_clock.h"
#include "check/stream_tables.h"
#include "check/version_measures.h"
#include "input/packet_sink.h"

namespace inspect {

/// Holds a stream to ETSI TR 101 290 and more. Packets are looked at as they come; what is seen waits until
/// the next PCR of the stream's clock tells its time, and is judged then. Memory is bounded, whatever comes.
class StreamCheck final : public PacketSink {
 public:
  StreamCheck();

  void take(sivane::PacketRun const& run) override;
  void take_skipped(SkippedRange const& range) override;
  void take_arrival(std::int64_t nanoseconds) override;
  void finish();

  Findings const& findings() const { return findings_; }
  RepetitionMeasures const& repetitions() const { return repetition_; }
  Place const& end() const { return end_; }  ///< behind the last packet
  /// When a place near the end was, as far as it is known by now; -1 without a clock.
  std::int64_t ticks_at(std::uint64_t offset) const { return clock_.ticks_at(offset); }
  bool has_clock() const { return end_.ticks >= 0; }
  /// Why a measure is not, or not all, measured; empty where it is.
  std::string reservation(MeasureRow const& row) const;

 private:
  void judge_what_waits();
  void judge(Observation const& seen);
  void judge_section(Observation const& seen);
  void judge_spans();
  void follow(Observation const& seen);
  void keep_waiting_short();
  Place timed(Place place) const;

  Findings findings_;
  std::vector<Observation> waiting_;
  PidWatch pid_watch_;
  SectionWatch section_watch_;
  StreamClock clock_;
  StreamTables coming_;  // the tables, before what waits is judged: their PIDs are watched at once
  StreamTables tables_;
  ClockMeasures clocks_;
  ReferenceMeasures references_;
  RepetitionMeasures repetition_;
  VersionMeasures versions_;
  Place end_;
  std::size_t looked_at_ = 0;  // of what waits, for clocks
  std::uint64_t sync_losses_ = 0, sync_byte_errors_ = 0;
  std::int64_t first_arrival_ = -1;
};

}  // namespace inspect
