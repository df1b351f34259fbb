// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What is on at the services of the sample stream, and what time it is there.
#pragma once

#include <vector>

#include "fields.h"

namespace sample {

/// The present and the following event of each of `services(version)`.
std::vector<Bytes> eit_sections(int version);

Bytes tdt(Time now);
Bytes tot(Time now);

}  // namespace sample
