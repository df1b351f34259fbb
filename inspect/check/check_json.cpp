// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <cmath>
#include <ostream>

#include "check/check_text.h"
#include "check/subject_texts.h"

namespace inspect {

namespace {

/// In seconds, to the microsecond.
double seconds_of(std::int64_t ticks) {
  constexpr double ticks_of_microsecond = 27;
  return std::round(static_cast<double>(ticks) / ticks_of_microsecond) / 1e6;
}

void write_time(JsonWriter& json, std::int64_t ticks) {
  ticks < 0 ? json.null() : json.real(seconds_of(ticks));
}

void write_place(JsonWriter& json, char const* name, Occurrence const& occurrence) {
  Place const& place = occurrence.place;
  json.key(name);
  json.begin_object();
  json.member("packet", static_cast<long long>(place.packet));
  json.member("offset", static_cast<long long>(place.offset));
  json.key("time");
  write_time(json, place.ticks);
  if (place.arrival >= 0) {
    json.key("arrival");
    json.real(std::round(static_cast<double>(place.arrival) / 1e3) / 1e6);
  }
  json.member("detail", occurrence.detail);
  json.end_object();
}

void write_tally(JsonWriter& json, Tally const& tally) {
  json.member("count", static_cast<long long>(tally.count));
  if (tally.count == 0) return;
  write_place(json, "first", tally.first);
  write_place(json, "last", tally.last);
}

void write_measure(JsonWriter& json, StreamCheck const& check, MeasureRow const& row) {
  Finding const& finding = check.findings().of(row.measure);
  std::string const reservation = check.reservation(row);
  json.begin_object();
  json.member("name", row.name);
  json.member("priority", row.priority);
  json.member("clause", clause_of_priority[row.priority]);
  json.member("number", row.number);
  if (row.need != Need::more) json.member("limit", row.limit);
  json.key("measured");
  json.flag(!reservation.starts_with("not measured"));
  if (!reservation.empty()) json.member("note", reservation);
  write_tally(json, finding.all);
  json.key("subjects");
  json.begin_array();
  for (auto const& [subject, tally] : finding.subjects) {
    json.begin_object();
    json.member("subject", subject);
    write_tally(json, tally);
    json.end_object();
  }
  json.end_array();
  json.end_object();
}

}  // namespace

void print_check_as_json(std::ostream& out, StreamCheck const& check) {
  JsonWriter json(out);
  write_check(json, check);
  json.end_line();
}

void write_check(JsonWriter& json, StreamCheck const& check) {
  json.begin_object();
  json.member("packets", static_cast<long long>(check.end().packet));
  json.key("seconds");
  write_time(json, check.end().ticks);
  json.key("measures");
  json.begin_array();
  for (MeasureRow const& row : measure_list()) write_measure(json, check, row);
  json.end_array();
  json.end_object();
}

}  // namespace inspect
