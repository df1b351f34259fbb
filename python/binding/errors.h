// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>
#include <sivane/foundation/error.h>

#include <string>

namespace sivane::python {

/// What `sivane.Error` says of a failure: the library's words, or those of its code where it has none.
std::string message_of(error const& failure);

/// Sets the failure as the interpreter's current exception, a `sivane.Error`.
void set_error(error const& failure);

/// Makes `sivane.Error`, and every `error` that leaves a function of the module one.
void add_errors(pybind11::module_& module);

}  // namespace sivane::python
