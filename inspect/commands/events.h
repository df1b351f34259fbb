// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/catalogue_command.h"

namespace inspect {

/// Lists the events that the EITs announce, by service and time.
class EventsCommand final : public CatalogueCommand {
 public:
  explicit EventsCommand(Showing const& showing) : CatalogueCommand(showing) {}

 private:
  void choose_tags(sivane::ParseOptions& options) const override;
  bool print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) override;
  char const* nothing() const override { return "no event is announced"; }
};

}  // namespace inspect
