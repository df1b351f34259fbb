// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

namespace sivane::python {

/// Makes `parse` and `load_xml`.
void add_tables(pybind11::module_& module);

}  // namespace sivane::python
