// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>

#include "commands/command.h"

namespace inspect {

/// Shows every section as the library's own text dump.
class DumpCommand final : public Command {
 public:
  explicit DumpCommand(std::ostream& out) : out_(out) {}

 private:
  void show(Section const& section) override;
  void show_failure(Failure const& failure) override;
  void show_title(std::string_view class_name);

  std::ostream& out_;
};

}  // namespace inspect
