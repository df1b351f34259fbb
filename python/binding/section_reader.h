// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

namespace sivane::python {

/// Makes `SectionReader`, on which the package's `sections` is built.
void add_section_reader(pybind11::module_& module);

}  // namespace sivane::python
