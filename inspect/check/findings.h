// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "check/measures.h"

namespace inspect {

/// Times are in units of 27 MHz, as PCRs are.
inline constexpr std::int64_t ticks_of_second = 27'000'000;
inline constexpr std::int64_t ticks_of_millisecond = 27'000;

/// A packet of a stream.
struct Place {
  std::uint64_t packet = 0;   ///< its number, from 0
  std::uint64_t offset = 0;   ///< of its sync byte in the input
  std::int64_t ticks = -1;    ///< since the stream's first byte by the stream's clock; -1 without one
  std::int64_t arrival = -1;  ///< of live input: nanoseconds since 1970-01-01 UTC; else -1
};

struct Occurrence {
  Place place;
  std::string detail;
};

/// What was found, and where first and last.
struct Tally {
  std::uint64_t count = 0;
  Occurrence first, last;

  void add(Occurrence const& occurrence);
};

/// What was found of one measure.
struct Finding {
  Tally all;
  std::map<std::string, Tally> subjects;  ///< by what it is about: a PID, a table, ...
};

/// What was found, of each measure.
class Findings {
 public:
  Findings() : findings_(measure_list().size()) {}

  void add(Measure measure, std::string const& subject, Place const& place, std::string detail = {});
  Finding const& of(Measure measure) const { return findings_[static_cast<std::size_t>(measure)]; }
  /// Whether there is anything of priority 1 or 2.
  bool has_grave() const;

  /// Subjects of one measure; what is about further ones is counted in the sum alone.
  static constexpr std::size_t most_subjects = 1000;

 private:
  std::vector<Finding> findings_;
};

}  // namespace inspect
