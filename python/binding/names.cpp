// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "names.h"

#include <sivane/registry/codes.h>
#include <sivane/registry/registry.h>

#include <cstdint>
#include <cstring>
#include <limits>

namespace sivane::python {

namespace py = pybind11;

namespace {

/// Without the entities and blanks that the lists left in it.
py::object as_people_read_it(char const* name) {
  auto const text = py::reinterpret_steal<py::object>(
      PyUnicode_DecodeLatin1(name, static_cast<Py_ssize_t>(std::strlen(name)), nullptr));
  if (!text) throw py::error_already_set();
  return py::str(" ").attr("join")(text.attr("replace")("&nbsp;", " ").attr("split")());
}

template <char const* (*lookup)(int)>
py::object registered_name(std::int64_t id) {
  // Of 32 bits with or without a sign, as `to_dict` and attributes have them.
  if (id < std::numeric_limits<std::int32_t>::min() || id > std::numeric_limits<std::uint32_t>::max())
    return py::none();
  char const* const name = lookup(static_cast<std::int32_t>(id));
  return std::strcmp(name, "<unknown>") == 0 ? py::none() : as_people_read_it(name);
}

void add_names_of_codes(py::module_& module) {
  module.def("stream_type_name", stream_type_name, py::arg("stream_type"),
             "What a stream_type of 8 bits stands for, or None (ISO/IEC 13818-1, table 2-34).");
  module.def("service_type_name", service_type_name, py::arg("service_type"),
             "What a service_type of 8 bits stands for, or None (ETSI EN 300 468, table 89).");
  module.def("genre_name", genre_name, py::arg("content_nibble_level_1"), py::arg("content_nibble_level_2"),
             "The genre that two numbers of 4 bits stand for, or None (ETSI EN 300 468, table 29).");
  module.def("component_coding_name", component_coding_name, py::arg("stream_content"),
             py::arg("stream_content_ext"), py::arg("component_type"),
             "How a component is coded, or None: by two numbers of 4 bits and one of 8 (ETSI EN 300 468, "
             "table 26).");
}

/// Whose number it is, by the lists of ETSI TR 101 162.
void add_registered_names(py::module_& module) {
  module.def("network_name", registered_name<get_network_id>, py::arg("network_id"),
             "What a network_id of 16 bits is registered for, or None.");
  module.def("original_network_name", registered_name<get_original_network_id>,
             py::arg("original_network_id"),
             "What an original_network_id of 16 bits is registered for, or None.");
  module.def("bouquet_name", registered_name<get_bouquet_id>, py::arg("bouquet_id"),
             "What a bouquet_id of 16 bits is registered for, or None.");
  module.def("ca_system_name", registered_name<get_ca_system_id>, py::arg("ca_system_id"),
             "What a CA_system_ID of 16 bits is registered for, or None.");
  module.def("private_data_name", registered_name<get_private_data_id>, py::arg("private_data_specifier"),
             "What a private_data_specifier of 32 bits is registered for, or None.");
  module.def("data_broadcast_name", registered_name<get_data_broadcast_id>, py::arg("data_broadcast_id"),
             "What a data_broadcast_id of 16 bits is registered for, or None.");
  module.def("organisation_name", registered_name<get_mhp_id>, py::arg("organisation_id"),
             "What an organisation_id of 32 bits of an AIT is registered for, or None.");
}

}  // namespace

void add_names(py::module_& module) {
  init();
  add_names_of_codes(module);
  add_registered_names(module);
}

}  // namespace sivane::python
