// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "diff/difference.h"
#include "diff/snapshot.h"

namespace inspect {

/// What was added, removed or changed from one input to the other, by the ids of tables and of what they
/// list. Sizes, checksums and the numbers of sections are left out, as are the times of a TOT. Of a table
/// that is not whole in both, the sections that both have of the same version are compared.
Differences compare(Snapshot const& a, Snapshot const& b);

}  // namespace inspect
