// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <ostream>

#include "commands/command.h"

namespace inspect {

/// Lists every section as one line of hexadecimal, whatever its table.
class SectionsCommand final : public Command {
 public:
  explicit SectionsCommand(Showing const& showing) : out_(showing.out) {}

 private:
  void show(Section const& section) override;

  std::ostream& out_;
};

}  // namespace inspect
