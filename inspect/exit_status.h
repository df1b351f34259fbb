// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

namespace inspect {

enum ExitStatus : int { all_well = 0, section_failed = 1, unusable = 2 };

}  // namespace inspect
