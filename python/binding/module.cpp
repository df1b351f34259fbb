// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <pybind11/pybind11.h>

#include "catalogue.h"
#include "demux.h"
#include "errors.h"
#include "names.h"
#include "node.h"
#include "section.h"
#include "section_reader.h"
#include "tables.h"
#include "values.h"

PYBIND11_MODULE(_sivane, module) {
  using namespace sivane::python;
  module.doc() = "The compiled part of the package sivane; import that.";
  module.attr("__version__") = SIVANE_VERSION;
  prepare_values();
  add_errors(module);
  add_nodes(module);
  add_sections(module);
  add_tables(module);
  add_section_reader(module);
  add_demux(module);
  add_catalogue(module);
  add_names(module);
  // Where hosts find them.
  for (char const* const name : {"Catalogue", "Counters", "Demux"}) {
    module.attr(name).attr("__module__") = "sivane";
  }
  for (auto const& [name, value] : module.attr("__dict__").cast<pybind11::dict>()) {
    if (PyCFunction_Check(value.ptr()) != 0) value.attr("__module__") = "sivane";
  }
}
