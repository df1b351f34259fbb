// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/check_text.h"

#include <map>
#include <ostream>

#include "check/subject_texts.h"
#include "console.h"
#include "text/terminal.h"

namespace inspect {

namespace {

constexpr std::size_t most_lines = 10;  // of what a measure was violated by

constexpr char const* headings[] = {"Beyond TR 101 290", "Priority 1 (ETSI TR 101 290, 5.2.1)",
                                    "Priority 2 (5.2.2)", "Priority 3 (5.2.3)"};

std::string place_text(Place const& place) {
  std::string text = "packet " + grouped(static_cast<long long>(place.packet)) + ", offset " +
                     grouped(static_cast<long long>(place.offset));
  return (place.ticks >= 0 ? time_text(place.ticks) + ", " : "") + text;
}

std::string state_text(StreamCheck const& check, MeasureRow const& row) {
  std::uint64_t const count = check.findings().of(row.measure).all.count;
  if (count > 0) return grouped(static_cast<long long>(count));
  std::string const reservation = check.reservation(row);
  return reservation.empty() ? "ok" : reservation.starts_with("not") ? "-" : "(ok)";
}

void print_rows(std::ostream& out, StreamCheck const& check, int priority) {
  Columns columns({"", "measure", "found", "limit"});
  for (MeasureRow const& row : measure_list()) {
    if (row.priority != priority) continue;
    columns.add({row.number, row.name, state_text(check, row), row.limit});
  }
  out << '\n' << headings[priority] << '\n';
  columns.print(out);
}

/// Which measures were not, or not all, measured, by the reason.
void print_reservations(std::ostream& out, StreamCheck const& check) {
  std::map<std::string, std::string> names;
  for (MeasureRow const& row : measure_list()) {
    std::string const reservation = check.reservation(row);
    if (reservation.empty()) continue;
    std::string& list = names[reservation];
    list += (list.empty() ? "" : ", ") + std::string(row.name);
  }
  if (!names.empty()) out << "\nNot (-) or not all (ok) measured\n";
  for (auto const& [reservation, list] : names) out << "  " << list << "\n    " << reservation << '\n';
}

void print_tally(std::ostream& out, std::string const& subject, Tally const& tally) {
  auto const with_detail = [](Occurrence const& occurrence) {
    std::string const detail = occurrence.detail.empty() ? "" : ": " + occurrence.detail;
    return place_text(occurrence.place) + detail;
  };
  out << "  " << subject << ", " << grouped(static_cast<long long>(tally.count)) << '\n';
  out << "    " << (tally.count > 1 ? "first " : "") << with_detail(tally.first) << '\n';
  if (tally.count > 1) out << "    last  " << with_detail(tally.last) << '\n';
}

void print_finding(std::ostream& out, MeasureRow const& row, Finding const& finding) {
  if (finding.all.count == 0) return;
  out << '\n' << row.name << '\n';
  std::size_t lines = 0;
  for (auto const& [subject, tally] : finding.subjects) {
    if (++lines > most_lines) break;
    print_tally(out, subject, tally);
  }
  if (finding.subjects.size() > most_lines)
    out << "  and " << grouped(static_cast<long long>(finding.subjects.size() - most_lines))
        << " more (see --json)\n";
}

}  // namespace

void print_check(std::ostream& out, StreamCheck const& check) {
  Place const& end = check.end();
  out << counted(static_cast<long long>(end.packet), "packet") << ", "
      << (check.has_clock() ? time_text(end.ticks) + " by the stream's clock"
                            : "no clock in the stream (PCR)")
      << '\n';
  for (int const priority : {1, 2, 3, 0}) print_rows(out, check, priority);
  print_reservations(out, check);
  for (int const priority : {1, 2, 3, 0}) {
    for (MeasureRow const& row : measure_list()) {
      if (row.priority == priority) print_finding(out, row, check.findings().of(row.measure));
    }
  }
}

}  // namespace inspect
