// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <vector>

#include "node.h"

namespace sivane::python {

/// What the types of nodes do.
struct NodeSlots {
  int size;  ///< bytes of an object
  std::vector<PyType_Slot> all;
  PyMethodDef* methods;
  PyMethodDef* table_methods;
  PyGetSetDef* table_properties;
  PyMethodDef* descriptor_methods;
  PyGetSetDef* descriptor_properties;
};

/// Makes the types: one for each class of the library's lists, below Table, Record and Descriptor.
void add_node_types(pybind11::module_& module, NodeSlots const& slots);

/// The type of the class that stands at a place.
PyTypeObject* type_of(Place const& place);

}  // namespace sivane::python
