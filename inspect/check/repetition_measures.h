// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>

#include "check/stream_tables.h"
#include "check/sub_table.h"
#include "check/table_rules.h"

namespace inspect {

/// How often sections come, and on which PIDs: PAT_error_2, PMT_error_2 and the errors of NIT, SDT, EIT, RST
/// and TDT, SI_repetition_error, and the tables in a wrong place.
class RepetitionMeasures {
 public:
  /// What repeats: a section where its rule asks for each, else all of the table.
  struct Repeated {
    SubTable table;
    int number = -1;
    auto operator<=>(Repeated const&) const = default;
  };
  struct Course {
    TableRule const* rule = nullptr;
    Place first;
    std::int64_t last = -1;  ///< ticks of the latest one, or since when it is waited for
    std::uint64_t count = 0;
    std::int64_t longest = 0, sum = 0;  ///< of the intervals, in ticks
    bool is_current = true;             ///< it belongs to the version that applies
  };

  RepetitionMeasures(Findings& findings, StreamTables const& tables);

  /// `began` are the ticks of the packet in which the section began.
  void take(Observation const& observation, std::int64_t began);
  /// The tables have changed at this place: others may be waited for.
  void follow_tables(Place const& now);
  /// A new version has come: what it leaves out is not waited for.
  void forget_version(SubTable const& table);
  void finish(Place const& end);

  std::map<Repeated, Course> const& courses() const { return courses_; }
  std::int64_t limit_of(Repeated const& repeated, TableRule const& rule) const;

 private:
  void expect(Repeated const& repeated, Place const& now);
  void judge_gap(Observation const& observation, TableRule const& rule, std::int64_t began);
  void judge_interval(Repeated const& repeated, Course& course, Place const& now);
  void judge_present_following(Place const& end);
  std::string text_of(Repeated const& repeated) const;

  Findings& findings_;
  StreamTables const& tables_;
  std::map<Repeated, Course> courses_;
  std::map<SubTable, std::int64_t> last_end_;  // ticks
};

}  // namespace inspect
