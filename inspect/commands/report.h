// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/catalogue.h>
#include <sivane/demux/demux.h>

#include <memory>
#include <ostream>

#include "check/stream_check.h"
#include "commands/command.h"
#include "report/rate_course.h"
#include "report/section_store.h"
#include "text/json.h"

namespace inspect {

/// Makes one page of HTML of a stream: what is in it, its guide, its PIDs, what check finds, and its sections
/// down to their fields.
class ReportCommand final : public Command, private PacketSink {
 public:
  explicit ReportCommand(Showing const& showing);
  ~ReportCommand() override;

  PacketSink* packet_sink() override { return this; }
  void finish() override;

 private:
  class Host;

  void take(sivane::PacketRun const& run) override;
  void take_skipped(SkippedRange const& range) override { check_.take_skipped(range); }
  void take_arrival(std::int64_t nanoseconds) override { check_.take_arrival(nanoseconds); }
  void show(Section const& section) override;
  void write_data(std::ostream& out);
  void write_repetitions(JsonWriter& json) const;
  void write_sections(JsonWriter& json);
  void write_section(JsonWriter& json, SectionStore::Entry const& entry);

  using Command::take;

  std::ostream& out_;
  std::string source_;
  sivane::charset::Converter texts_;
  sivane::catalogue::Catalogue catalogue_;
  StreamCheck check_;
  RateCourse course_;
  SectionStore sections_;
  std::unique_ptr<Host> host_;
};

}  // namespace inspect
