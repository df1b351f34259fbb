// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "commands/catalogue_command.h"

namespace inspect {

/// Writes the events as an XMLTV document, for programs that show or store guides.
class XmltvCommand final : public CatalogueCommand {
 public:
  explicit XmltvCommand(Showing const& showing) : CatalogueCommand(showing) {}

 private:
  void choose_tags(sivane::ParseOptions& options) const override;
  bool print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) override;
  char const* nothing() const override { return "no event is announced"; }
};

}  // namespace inspect
