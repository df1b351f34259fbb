// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/report.h"

#include <sivane/tables/any_table.h>

#include <sstream>

#include "check/check_text.h"
#include "check/subject_texts.h"
#include "commands/failure_text.h"
#include "commands/field_json.h"
#include "console.h"
#include "input/command_host.h"
#include "report/page.h"
#include "report/stream_facts.h"

namespace inspect {

namespace {

Options usual_tables() {
  Options options;
  options.input = Input::ts;
  return options;
}

sivane::catalogue::Options options_of(Showing const& showing) {
  sivane::catalogue::Options options;
  options.texts = showing.charset;
  return options;
}

void write_milliseconds(JsonWriter& json, char const* name, std::int64_t ticks) {
  json.member(name, (ticks + ticks_of_millisecond / 2) / ticks_of_millisecond);
}

}  // namespace

/// Gives the sections to the command.
class ReportCommand::Host final : public CommandHost<sivane::DemuxPush> {
 public:
  using CommandHost::CommandHost;
};

ReportCommand::ReportCommand(Showing const& showing)
    : out_(showing.out),
      source_(showing.source),
      texts_(showing.charset),
      catalogue_(options_of(showing)),
      host_(std::make_unique<Host>(usual_tables(), *this)) {}

ReportCommand::~ReportCommand() = default;

void ReportCommand::take(sivane::PacketRun const& run) {
  check_.take(run);
  course_.take(run, [this](std::uint64_t offset) { return check_.ticks_at(offset); });
  host_->push_packets(run);
}

void ReportCommand::show(Section const& section) {
  sections_.take(section);
  try {
    catalogue_.add(section.pid, section.bytes.data(), section.bytes.size());
  } catch (sivane::error const&) {
    return;  // it is among the findings
  }
}

void ReportCommand::finish() {
  check_.finish();
  std::ostringstream data;
  write_data(data);
  write_page(out_, data.view());
}

void ReportCommand::write_data(std::ostream& out) {
  JsonWriter json(out);
  json.begin_object();
  json.member("source", source_);
  json.member("made_by", "sivane-inspect " SIVANE_VERSION);
  json.member("packets", static_cast<long long>(check_.end().packet));
  json.member("bytes", static_cast<long long>(check_.end().offset));
  write_networks(json, catalogue_);
  write_services(json, catalogue_);
  write_programs(json, catalogue_);
  write_events(json, catalogue_);
  write_pids(json, catalogue_, course_);
  write_repetitions(json);
  json.key("check");
  write_check(json, check_);
  write_sections(json);
  json.end_object();
}

void ReportCommand::write_repetitions(JsonWriter& json) const {
  RepetitionMeasures const& repetitions = check_.repetitions();
  json.key("repetitions");
  json.begin_array();
  for (auto const& [repeated, course] : repetitions.courses()) {
    if (course.rule->longest == 0) continue;
    SectionSight sight = as_section(repeated.table);
    if (repeated.number < 0) sight.is_long = false;
    json.begin_object();
    json.member("table", table_text(repeated.table.pid, sight, repeated.number));
    json.member("count", static_cast<long long>(course.count));
    write_milliseconds(json, "limit", repetitions.limit_of(repeated, *course.rule));
    if (check_.has_clock()) write_milliseconds(json, "longest", course.longest);
    if (check_.has_clock() && course.count > 1)
      write_milliseconds(json, "mean", course.sum / static_cast<std::int64_t>(course.count - 1));
    json.end_object();
  }
  json.end_array();
}

void ReportCommand::write_sections(JsonWriter& json) {
  json.key("sections");
  json.begin_array();
  for (SectionStore::Entry const& entry : sections_.entries()) write_section(json, entry);
  json.end_array();
  json.member("sections_left_out", static_cast<long long>(sections_.left_out()));
}

void ReportCommand::write_section(JsonWriter& json, SectionStore::Entry const& entry) {
  json.begin_object();
  json.member("pid", entry.pid);
  json.member("table_id", entry.bytes[0]);
  json.member("offset", entry.offset);
  json.member("count", static_cast<long long>(entry.count));
  sivane::ParseOptions options;
  try {
    sivane::AnyTable const table = sivane::parse_table(entry.bytes.data(), entry.bytes.size(), options);
    json.member("class", sivane::class_name(table));
    json.key("table");
    json.begin_object();
    FieldJson fields(json, texts_);
    sivane::visit_table(table, fields);
    json.end_object();
  } catch (sivane::error const& failure) {
    json.member("error", reason_text(failure.code, failure.what()));
  }
  json.end_object();
}

}  // namespace inspect
