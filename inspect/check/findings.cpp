// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/findings.h"

#include <algorithm>

namespace inspect {

void Tally::add(Occurrence const& occurrence) {
  if (count++ == 0) first = occurrence;
  last = occurrence;
}

void Findings::add(Measure measure, std::string const& subject, Place const& place, std::string detail) {
  Finding& finding = findings_[static_cast<std::size_t>(measure)];
  Occurrence const occurrence{place, std::move(detail)};
  auto found = finding.subjects.find(subject);
  if (found == finding.subjects.end() && finding.subjects.size() < most_subjects)
    found = finding.subjects.try_emplace(subject).first;
  if (found != finding.subjects.end()) found->second.add(occurrence);
  finding.all.add({place, subject + (occurrence.detail.empty() ? "" : ": ") + occurrence.detail});
}

bool Findings::has_grave() const {
  return std::ranges::any_of(measure_list(), [this](MeasureRow const& row) {
    return row.priority >= 1 && row.priority <= 2 && of(row.measure).all.count > 0;
  });
}

}  // namespace inspect
