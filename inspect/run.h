// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "exit_status.h"
#include "options.h"

namespace inspect {

/// Opens the source and gives its sections to the command, up to the end of the run.
ExitStatus run(Options const& options);

}  // namespace inspect
