// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "check/observation.h"

namespace inspect {

/// Parses a section that is new, and tells what of it cannot be read.
void judge_content(Findings& findings, Observation const& observation);

}  // namespace inspect
