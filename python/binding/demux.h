// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

namespace sivane::python {

/// Makes `sivane.Demux`, to be derived from, and `Counters`.
void add_demux(pybind11::module_& module);

}  // namespace sivane::python
