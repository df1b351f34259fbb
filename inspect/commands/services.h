// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>

#include "commands/command.h"
#include "commands/service_list.h"

namespace inspect {

/// Lists the services that the SDTs describe.
class ServicesCommand final : public Command {
 public:
  explicit ServicesCommand(std::ostream& out) : out_(out) {}
  void finish() override;

 private:
  void show(Section const& section) override;

  std::ostream& out_;
  ServiceList services_;
};

}  // namespace inspect
