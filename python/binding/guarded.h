// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <exception>
#include <new>

#include "errors.h"

namespace sivane::python {

/// Runs what a slot of a type does and gives its result, or `failed` with the interpreter's exception set:
/// nothing may be thrown through the interpreter.
template <class Result, class Work>
Result guarded(Result failed, Work work) noexcept {
  try {
    return work();
  } catch (pybind11::error_already_set& raised) {
    raised.restore();
  } catch (error const& failure) {
    set_error(failure);
  } catch (std::bad_alloc const&) {
    PyErr_NoMemory();
  } catch (std::exception const& failure) {
    PyErr_SetString(PyExc_RuntimeError, failure.what());
  }
  return failed;
}

/// The same for a new reference.
template <class Work>
PyObject* new_reference(Work work) noexcept {
  return guarded<PyObject*>(nullptr, [&work] { return pybind11::object(work()).release().ptr(); });
}

}  // namespace sivane::python
