// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/check.h"

#include "check/check_text.h"

namespace inspect {

void CheckCommand::finish() {
  check_.finish();
  as_json_ ? print_check_as_json(out_, check_) : print_check(out_, check_);
}

bool CheckCommand::has_finding() const {
  Findings const& findings = check_.findings();
  return findings.has_grave() || findings.of(Measure::failed_section).all.count > 0;
}

}  // namespace inspect
