// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/tables/cat.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>

#include <map>
#include <ostream>
#include <set>
#include <string>

#include "commands/command.h"
#include "commands/service_list.h"
#include "text/terminal.h"

namespace inspect {

/// Lists programs with the PIDs that they are made of, and what share of the stream each PID has.
class ProgramsCommand final : public Command {
 public:
  explicit ProgramsCommand(Showing const& showing) : out_(showing.out), texts_(showing.charset) {}
  void finish() override;
  bool wants_packets() const override { return true; }
  void take_packets(PacketCounts const& counts) override { counts_ = counts; }

 private:
  struct Content {
    std::string what;
    std::set<std::string> languages;
    std::set<int> ca_systems;
  };
  using Pids = std::map<int, Content>;

  void show(Section const& section) override;
  void choose_tags(sivane::ParseOptions& options) const override;
  void take(sivane::Pat const& pat);
  void take(sivane::Cat const& cat);
  void take(sivane::Pmt const& pmt);
  /// Several systems may share a PID.
  static void add_ca(Pids& pids, sivane::DescriptorCa const& descriptor, char const* what);
  void take_stream(sivane::PmtStreamInfo const& stream, Pids& pids);
  std::string map_content(int number) const;
  void add_row(Columns& columns, std::string const& program, int pid, Content const& content) const;

  std::ostream& out_;
  sivane::charset::Converter texts_;
  std::map<int, int> program_map_pids_;  // by program_number
  std::map<int, Pids> programs_;         // by program_number
  ServiceList services_;
  Pids common_;  // that belong to no program
  PacketCounts counts_;
};

}  // namespace inspect
