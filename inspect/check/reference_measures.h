// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>
#include <optional>
#include <set>

#include "check/observation.h"
#include "check/stream_tables.h"

namespace inspect {

/// What tables say about PIDs against the packets that there are: PID_error, CAT_error, Unreferenced_PID, and
/// PIDs that the stream lacks.
class ReferenceMeasures {
 public:
  ReferenceMeasures(Findings& findings, StreamTables const& tables) : findings_(findings), tables_(tables) {}

  void take_span(PidSpan const& span);
  void take_scrambled(Observation const& observation);
  /// The tables have changed at this place.
  void follow_tables(Place const& now);
  void finish(Place const& end);

 private:
  struct Presence {
    Place first;
    std::int64_t last_ticks = -1;
    bool is_judged = false;    // whether a table names it
    bool is_reported = false;  // that none does
  };

  void judge_references(std::int64_t now);
  void judge_reference(int pid, Presence& presence);
  void judge_absence(int pid, Place const& end);
  void judge_cat(Place const& end);

  Findings& findings_;
  StreamTables const& tables_;
  std::map<int, Presence> present_;
  int unjudged_ = 0;                            // of those
  std::map<int, std::int64_t> expected_since_;  // PIDs that are to have a packet every 5 s
  std::optional<Place> first_scrambled_;
};

}  // namespace inspect
