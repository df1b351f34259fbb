// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>

#include <string>

#include "commands/command.h"
#include "diff/snapshot.h"

namespace inspect {

/// Takes the sections of two sources, and prints at the end of the second what they do not have in common.
class DiffCommand final : public Command {
 public:
  explicit DiffCommand(Showing const& showing);

  void finish() override;
  bool has_finding() const override { return differ_; }

 private:
  void show(Section const& section) override;
  /// The table as the text of an object.
  std::string json_of(Table const& table);

  Showing showing_;
  sivane::charset::Converter texts_;
  Snapshot a_, b_;
  Snapshot* current_ = &a_;
  bool differ_ = false;
};

}  // namespace inspect
