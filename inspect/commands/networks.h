// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/catalogue_command.h"

namespace inspect {

/// Lists networks and bouquets with their transport streams, and the CA systems that any table names.
class NetworksCommand final : public CatalogueCommand {
 public:
  explicit NetworksCommand(Showing const& showing) : CatalogueCommand(showing) {}

 private:
  void choose_tags(sivane::ParseOptions& options) const override;
  bool print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) override;
  char const* nothing() const override { return "no network is described"; }
};

}  // namespace inspect
