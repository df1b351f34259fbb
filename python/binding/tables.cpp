// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "tables.h"

#include <memory>
#include <string>

#include "buffer.h"
#include "documents.h"
#include "section.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

py::object parse(py::handle data, bool tolerant, std::string const& class_name, std::string const& charset,
                 std::string const& charset_always) {
  Buffer const buffer(data);
  auto const settings = std::make_shared<Settings>(tolerant, charset, charset_always);
  return parsed(buffer.bytes().data(), buffer.bytes().size(), settings, class_name);
}

py::object load_xml(std::string const& text, std::string const& charset, std::string const& charset_always) {
  return make_table_node(loaded(text, std::make_shared<Settings>(false, charset, charset_always)));
}

}  // namespace

void add_tables(py::module_& module) {
  module.def(
      "parse", parse, py::arg("data"), py::kw_only(), py::arg("tolerant") = false, py::arg("class_name") = "",
      py::arg("charset") = "", py::arg("charset_always") = "",
      "The table that a section's bytes hold: of the class that has its table id, or of the class that is "
      "named, \"Ait\" say. Raises Error; with `tolerant` what is broken inside becomes a line in "
      "`problems`.");
  module.def("load_xml", load_xml, py::arg("text"), py::kw_only(), py::arg("charset") = "",
             py::arg("charset_always") = "", "The table that `to_xml` wrote. Raises Error.");
}

}  // namespace sivane::python
