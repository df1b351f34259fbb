// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <memory>
#include <string>

#include "node.h"

namespace sivane::python {

/// The lines of a table or descriptor.
pybind11::str dumped(Place const& place);
/// A table as a document, whose root has the name of its class.
pybind11::str saved(AnyTable const& table);
/// What such a document holds. Throws `error` where it is none.
std::shared_ptr<Held> loaded(std::string const& text, SharedSettings settings);
/// What `repr` says.
pybind11::str description(Place const& place, char const* type);

}  // namespace sivane::python
