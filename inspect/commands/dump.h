// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <ostream>

#include "commands/command.h"

namespace inspect {

/// Shows every section as the library's own text dump.
class DumpCommand final : public Command {
 public:
  explicit DumpCommand(Showing const& showing) : out_(showing.out), is_terminal_(showing.is_terminal) {}

 private:
  void show(Section const& section) override;
  void show_failure(Section const& section, Failure const& failure) override;
  void show_title(std::string_view class_name);

  std::ostream& out_;
  bool is_terminal_;
};

}  // namespace inspect
