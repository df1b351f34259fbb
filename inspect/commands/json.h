// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>

#include "commands/command.h"
#include "text/json.h"

namespace inspect {

/// Prints every section as one JSON object a line.
class JsonCommand final : public Command {
 public:
  explicit JsonCommand(Showing const& showing);

 private:
  void show(Section const& section) override;
  void show_failure(Section const& section, Failure const& failure) override;
  void begin(Section const& section, int table_id, std::string_view class_name);
  void write_problems();

  JsonWriter json_;
  sivane::charset::Converter texts_;
  bool with_names_;
};

}  // namespace inspect
