// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

namespace inspect {

/// Sections of one table id on one PID.
struct Handle {
  int pid;
  int table_id;
};

}  // namespace inspect
