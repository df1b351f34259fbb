// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include "node.h"

namespace sivane::python {

/// All that stands at a place in plain values, as the JSON of the command-line tool has it: names and numbers
/// as in documents, texts in Unicode, bytes in hexadecimal, dates and durations by ISO 8601.
pybind11::dict as_dict(Place const& place);

}  // namespace sivane::python
