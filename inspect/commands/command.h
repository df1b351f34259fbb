// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "input/section.h"
#include "tables/table_classes.h"

namespace inspect {

enum ExitStatus : int { all_well = 0, section_failed = 1, unusable = 2 };

/// One line on standard error, behind the program's name.
void report(std::string_view reason);

/// Why a section could not be shown.
struct Failure {
  std::string_view class_name;  ///< "-" where the host itself refused the section
  int code;
  std::string what;
};

/// What the program does with the sections of its input. It numbers them from 1, and reports and counts those
/// that fail.
class Command {
 public:
  virtual ~Command() = default;

  void take(Section const& section);
  /// Takes the place of a section that the input could not make out.
  void take_broken(char const* reason);
  /// Called once behind the last section.
  virtual void finish() {}
  int failures() const { return failures_; }

 protected:
  virtual void show(Section const& section) = 0;
  virtual void show_failure(Failure const&) {}

  int number() const { return number_; }
  /// A fresh object of the section's class, filled; null, and the failure shown, where that cannot be.
  std::unique_ptr<Table> table_of(Section const& section);
  void fail(Failure const& failure);
  /// A failure of the host itself.
  void refuse(char const* reason);

 private:
  int number_ = 0;
  int failures_ = 0;
};

}  // namespace inspect
