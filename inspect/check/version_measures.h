// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <array>
#include <map>

#include "check/stream_tables.h"
#include "check/sub_table.h"

namespace inspect {

/// Beyond TR 101 290: versions that go back or stay where content changes, and sections and segments that a
/// table lacks.
class VersionMeasures {
 public:
  VersionMeasures(Findings& findings, StreamTables const& tables) : findings_(findings), tables_(tables) {}

  /// True if a new version begins with the section.
  bool take(Observation const& observation);
  void finish(Place const& end);

 private:
  struct Version {
    int number = -1;
    int last_section = 0;
    int last_table = 0;  // of a schedule
    Place first;
    std::map<int, std::uint64_t> sections;  // how often each came
    std::map<int, int> segments;            // of a schedule: the last section of each
  };

  static bool has_come_round(Version const& version);
  void begin_version(Version& version, Observation const& observation);
  void judge(SubTable const& table, Version const& version, Place const& now);
  void judge_segments(SubTable const& table, Version const& version, Place const& now);
  void judge_tables_behind(SubTable const& table, Version const& version, Place const& now);
  bool is_wanted(SubTable const& table, Version const& version, int section) const;
  bool is_due(SubTable const& table, int section, Version const& version, Place const& now) const;

  Findings& findings_;
  StreamTables const& tables_;
  std::map<SubTable, Version> versions_;
};

}  // namespace inspect
