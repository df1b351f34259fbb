// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

namespace sivane::python {

/// Makes `stream_type_name` and the other functions that give what a number stands for.
void add_names(pybind11::module_& module);

}  // namespace sivane::python
