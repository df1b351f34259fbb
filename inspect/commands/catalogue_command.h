// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/catalogue.h>

#include <ostream>

#include "commands/command.h"

namespace inspect {

/// A command that gathers the tables of its input in a catalogue, and prints of it at the end.
class CatalogueCommand : public Command {
 public:
  void finish() final;

 protected:
  explicit CatalogueCommand(Showing const& showing);

  void show(Section const& section) override;
  /// Prints what there is; false where there is nothing.
  virtual bool print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) = 0;
  /// What is noted where there is nothing.
  virtual char const* nothing() const = 0;

 private:
  std::ostream& out_;
  sivane::catalogue::Catalogue catalogue_;
};

}  // namespace inspect
