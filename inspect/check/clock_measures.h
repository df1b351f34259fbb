// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>

#include "check/observation.h"
#include "check/stream_tables.h"

namespace inspect {

/// PCR_repetition_error, PCR_discontinuity_indicator_error and PTS_error.
class ClockMeasures {
 public:
  ClockMeasures(Findings& findings, StreamTables const& tables) : findings_(findings), tables_(tables) {}

  void take_pcr(Observation const& observation);
  void take_pts(Observation const& observation);
  /// What is scrambled shows no PTS.
  void take_scrambled(int pid) { last_pts_.erase(pid); }
  /// From here on the PCRs of the programs are waited for.
  void expect_clocks(Place const& now);
  void finish(Place const& end);

  bool has_pcrs() const { return has_pcrs_; }

 private:
  struct Pcr {
    std::uint64_t value;
    std::int64_t ticks;
    bool is_first;  // none has come: it is when the wait began
  };

  Findings& findings_;
  StreamTables const& tables_;
  std::map<int, Pcr> last_pcr_;
  std::map<int, std::int64_t> last_pts_;
  bool has_pcrs_ = false;
};

}  // namespace inspect
