// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/catalogue_command.h"

namespace inspect {

/// Lists programs with the PIDs that they are made of, and what share of the stream each PID has.
class ProgramsCommand final : public CatalogueCommand {
 public:
  explicit ProgramsCommand(Showing const& showing) : CatalogueCommand(showing) {}
  bool wants_packets() const override { return true; }
  void take_packets(PacketCounts const& counts) override { counts_ = counts; }

 private:
  void show(Section const& section) override;
  void choose_tags(sivane::ParseOptions& options) const override;
  bool print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) override;
  char const* nothing() const override { return "no program is described"; }

  PacketCounts counts_;
};

}  // namespace inspect
