// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section.h"

#include <structmember.h>

#include <cstddef>
#include <new>
#include <string>
#include <type_traits>

#include "guarded.h"
#include "node.h"
#include "values.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

PyTypeObject* section_type = nullptr;  // as long as the process

// As the interpreter lays it out.
struct Section {
  PyObject_HEAD PyObject* bytes;
  PyObject* table;  // null until it was asked for
  long long offset;
  long long packet;
  int pid;
  int table_id;
  SharedSettings settings;
};

Section& section_of(PyObject* self) { return *reinterpret_cast<Section*>(self); }

void dealloc(PyObject* self) {
  PyTypeObject* const type = Py_TYPE(self);
  Section& section = section_of(self);
  Py_XDECREF(section.bytes);
  Py_XDECREF(section.table);
  section.settings.~SharedSettings();
  type->tp_free(self);
  Py_DECREF(type);
}

PyObject* refuse_to_make(PyTypeObject* type, PyObject*, PyObject*) {
  return PyErr_Format(PyExc_TypeError, "%s objects are made by sections and Demux", type->tp_name);
}

PyObject* table(PyObject* self, void*) {
  Section& section = section_of(self);
  if (section.table == nullptr) {
    section.table = new_reference([&section] {
      return parsed(reinterpret_cast<unsigned char const*>(PyBytes_AS_STRING(section.bytes)),
                    static_cast<std::size_t>(PyBytes_GET_SIZE(section.bytes)), section.settings);
    });
  }
  return Py_XNewRef(section.table);
}

PyObject* describe(PyObject* self) {
  Section const& section = section_of(self);
  char text[120];
  PyOS_snprintf(text, sizeof text, "<sivane.Section pid=0x%04x table_id=0x%02x packet=%lld, %zd bytes>",
                section.pid, section.table_id, section.packet, PyBytes_GET_SIZE(section.bytes));
  return PyUnicode_FromString(text);
}

PyMemberDef members[] = {
    {"pid", T_INT, offsetof(Section, pid), READONLY, "PID, 13 bits."},
    {"table_id", T_INT, offsetof(Section, table_id), READONLY, "table_id, 8 bits."},
    {"bytes", T_OBJECT_EX, offsetof(Section, bytes), READONLY, "The whole section, from table_id on."},
    {"packet", T_LONGLONG, offsetof(Section, packet), READONLY,
     "Number of the packet in which the section began, counted from 0."},
    {"offset", T_LONGLONG, offsetof(Section, offset), READONLY,
     "Where that packet is in the source, in bytes from its start."},
    {}};
PyGetSetDef properties[] = {
    {"table", table, nullptr,
     "The table, parsed when it is asked for first. Raises Error where it cannot be.", nullptr},
    {}};
constexpr char const* documentation = "A section as it was sent.";

}  // namespace

py::object make_section(SectionView const& view, SharedSettings const& settings) {
  py::bytes bytes = python::bytes(view.bytes, view.size);
  PyObject* const made = section_type->tp_alloc(section_type, 0);
  if (made == nullptr) throw py::error_already_set();
  Section& section = section_of(made);
  section.bytes = bytes.release().ptr();
  section.table = nullptr;
  section.offset = static_cast<long long>(view.offset);
  section.packet = view.packet;
  section.pid = view.pid;
  section.table_id = view.bytes[0];
  new (&section.settings) SharedSettings(settings);
  return py::reinterpret_steal<py::object>(made);
}

py::object parsed(unsigned char const* section, std::size_t size, SharedSettings const& settings,
                  std::string_view class_name) {
  auto held = std::make_shared<Held>();
  held->settings = settings;
  if (size == 0) throw error("too little data");
  held->table = class_name.empty() ? make_table(section[0]) : make_table(class_name);
  if (held->table.index() == 0) {
    throw error(class_name.empty() ? "no class for table id" : "no table class has this name");
  }
  held->has_tags_of_all_tables = !std::holds_alternative<Ait>(held->table);
  std::visit(
      [&](auto& table) {
        if constexpr (!std::is_same_v<std::remove_cvref_t<decltype(table)>, std::monostate>) {
          if (!settings->tolerant) return table.Parse(section, size);
          ParseOptions options;
          table.Parse(section, size, options);
          held->problems = std::move(options.problems);
        }
      },
      held->table);
  return make_table_node(std::move(held));
}

void add_sections(py::module_& module) {
  PyType_Slot slots[] = {{Py_tp_new, reinterpret_cast<void*>(refuse_to_make)},
                         {Py_tp_dealloc, reinterpret_cast<void*>(dealloc)},
                         {Py_tp_repr, reinterpret_cast<void*>(describe)},
                         {Py_tp_members, members},
                         {Py_tp_getset, properties},
                         {Py_tp_doc, const_cast<char*>(documentation)},
                         {0, nullptr}};
  PyType_Spec spec = {"sivane.Section", static_cast<int>(sizeof(Section)), 0,
                      Py_TPFLAGS_DEFAULT | Py_TPFLAGS_IMMUTABLETYPE, slots};
  PyObject* const type = PyType_FromSpec(&spec);
  if (type == nullptr) throw py::error_already_set();
  section_type = reinterpret_cast<PyTypeObject*>(type);
  module.attr("Section") = py::handle(type);
}

}  // namespace sivane::python
