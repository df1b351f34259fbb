// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <ostream>

#include "commands/command.h"
#include "commands/service_list.h"

namespace inspect {

/// Lists the services that the SDTs describe.
class ServicesCommand final : public Command {
 public:
  explicit ServicesCommand(Showing const& showing) : out_(showing.out), texts_(showing.charset) {}
  void finish() override;

 private:
  void show(Section const& section) override;
  void choose_tags(sivane::ParseOptions& options) const override;

  std::ostream& out_;
  sivane::charset::Converter texts_;
  ServiceList services_;
};

}  // namespace inspect
