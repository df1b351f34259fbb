// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/dom/element_writer.h>

#include "commands/command.h"

namespace inspect {

/// Saves all sections as one document, each as it comes.
class XmlCommand final : public Command {
 public:
  explicit XmlCommand(Showing const& showing) : writer_(showing.out, "sections") {}
  void finish() override { writer_.finish(); }

 private:
  void show(Section const& section) override;
  void show_failure(Section const& section, Failure const& failure) override;

  sivane::dom::ElementWriter writer_;
};

}  // namespace inspect
