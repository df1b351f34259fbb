// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "errors.h"

#include <exception>
#include <utility>

namespace sivane::python {

namespace py = pybind11;

namespace {

PyObject* error_class = nullptr;  // as long as the process: the interpreter never unloads a module

constexpr char const* documentation =
    "What the library refuses: sections, documents, and bytes that are no transport stream.\n\n"
    "`code` is 0 for items of a wrong length, 2 for header bits or a loop that does not end where it "
    "should,\n"
    "3 for a length that does not fit, -1 for all else; `what` has the library's own words, which may be "
    "none;\n"
    "`offset` is the byte of the section, -1 where there is none.";

char const* name_of(error::errorcode_enum code) {
  switch (code) {
    case error::item_length_error:
      return "item length error";
    case error::reserved_error:
      return "reserved error";
    case error::syntax_error:
      return "syntax error";
    case error::length_error:
      return "length error";
    case error::no_errorcode:
      break;
  }
  return "error";
}

}  // namespace

std::string message_of(error const& failure) {
  std::string message = failure.what();
  if (message.empty()) message = name_of(failure.code);
  if (failure.offset >= 0) message += " at byte " + std::to_string(failure.offset) + " of the section";
  return message;
}

void set_error(error const& failure) {
  py::object const thrown = py::reinterpret_borrow<py::object>(error_class)(message_of(failure));
  thrown.attr("code") = static_cast<int>(failure.code);
  thrown.attr("what") = failure.what();
  thrown.attr("offset") = failure.offset;
  PyErr_SetObject(error_class, thrown.ptr());
}

void add_errors(py::module_& module) {
  py::dict members;
  members["code"] = static_cast<int>(error::no_errorcode);
  members["what"] = "";
  members["offset"] = -1;
  error_class = PyErr_NewExceptionWithDoc("sivane.Error", documentation, PyExc_Exception, members.ptr());
  if (error_class == nullptr) throw py::error_already_set();
  module.attr("Error") = py::reinterpret_borrow<py::object>(error_class);
  py::register_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(std::move(thrown));
    } catch (error const& failure) {
      set_error(failure);
    }
  });
}

}  // namespace sivane::python
