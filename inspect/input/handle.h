// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/tables/registrations.h>

namespace inspect {

/// Sections of one table id on one PID.
using Handle = sivane::Registration;

}  // namespace inspect
