// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <string_view>

#include "node.h"

namespace sivane::python {

/// The field of this name, by its C++ member: a number, a str, bytes, a datetime or timedelta or None, a
/// further object, or a tuple of some. Null where there is no such field.
pybind11::object attribute(Place const& place, std::string_view name);

/// The names of all fields.
pybind11::list attribute_names(Place const& place);

}  // namespace sivane::python
