// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

#include "commands/catalogue_command.h"

namespace inspect {

/// Writes a playlist of the services of the source, in the order of their channel numbers.
class M3uCommand final : public CatalogueCommand {
 public:
  explicit M3uCommand(Showing const& showing) : CatalogueCommand(showing), source_(showing.source) {}

 private:
  void choose_tags(sivane::ParseOptions& options) const override;
  bool print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) override;
  char const* nothing() const override { return "no service is described"; }

  std::string source_;
};

}  // namespace inspect
