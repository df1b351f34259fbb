// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "node.h"

#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "as_dict.h"
#include "attributes.h"
#include "documents.h"
#include "guarded.h"
#include "node_types.h"
#include "values.h"

namespace sivane::python {

namespace py = pybind11;

void Place::visit(FieldVisitor& visitor) const {
  if (auto const* const table = std::get_if<AnyTable const*>(&of)) return visit_table(**table, visitor);
  if (auto const* const record = std::get_if<FieldHolder>(&of)) return record->visit(visitor);
  std::get<DescriptorBase const*>(of)->visit(visitor);
}

namespace {

// As the interpreter lays it out. It has no cycles: what is known are objects that never change.
struct Node {
  PyObject_HEAD Place place;
  std::vector<std::pair<PyObject*, PyObject*>> known;  // names, each the only object of its text, and values
};

Place const& place_of(PyObject* self) { return reinterpret_cast<Node*>(self)->place; }

DescriptorBase const& descriptor_of(PyObject* self) {
  return *std::get<DescriptorBase const*>(place_of(self).of);
}

void dealloc(PyObject* self) {
  PyTypeObject* const type = Py_TYPE(self);
  Node* const node = reinterpret_cast<Node*>(self);
  for (auto const& [name, value] : node->known) {
    Py_DECREF(name);
    Py_DECREF(value);
  }
  std::destroy_at(&node->known);
  std::destroy_at(&node->place);
  type->tp_free(self);
  Py_DECREF(type);
}

PyObject* refuse_to_make(PyTypeObject* type, PyObject*, PyObject*) {
  return PyErr_Format(PyExc_TypeError, "%s objects are made by sections, parse and load_xml", type->tp_name);
}

/// Whether a value is worth keeping: numbers are made as quickly as they are found.
bool is_kept(PyObject* name, py::object const& value) {
  return value && PyUnicode_CHECK_INTERNED(name) != SSTATE_NOT_INTERNED && !PyLong_CheckExact(value.ptr()) &&
         !PyFloat_CheckExact(value.ptr());
}

py::object member(Node& node, PyObject* name) {
  Py_ssize_t size = 0;
  char const* const letters = PyUnicode_AsUTF8AndSize(name, &size);
  if (letters == nullptr && PyErr_ExceptionMatches(PyExc_UnicodeError) == 0) throw py::error_already_set();
  if (letters == nullptr) {  // no field has such a name
    PyErr_Clear();
    return {};
  }
  py::object value = attribute(node.place, {letters, static_cast<std::size_t>(size)});
  if (is_kept(name, value)) {
    node.known.emplace_back(name, value.ptr());
    Py_INCREF(name);
    value.inc_ref();
  }
  return value;
}

/// A field by its name, or what every object of the type has.
PyObject* get_attribute(PyObject* self, PyObject* name) {
  Node& node = *reinterpret_cast<Node*>(self);
  for (auto const& [known, value] : node.known) {
    if (known == name) return Py_NewRef(value);
  }
  if (!PyUnicode_Check(name)) return PyObject_GenericGetAttr(self, name);  // which refuses it
  bool const is_special = PyUnicode_GET_LENGTH(name) > 0 && PyUnicode_READ_CHAR(name, 0) == '_';
  if (!is_special) {
    PyObject* const value = new_reference([&] { return member(node, name); });
    if (value != nullptr || PyErr_Occurred() != nullptr) return value;
  }
  return PyObject_GenericGetAttr(self, name);
}

PyObject* names(PyObject* self, PyObject*) {
  return new_reference([self] {
    py::list all = attribute_names(place_of(self));
    py::object const of_type = py::module_::import("builtins").attr("dir")(py::type::of(py::handle(self)));
    all.attr("extend")(of_type);
    return all;
  });
}

PyObject* to_dict(PyObject* self, PyObject*) {
  return new_reference([self] { return as_dict(place_of(self)); });
}

PyObject* dump(PyObject* self, PyObject*) {
  return new_reference([self] { return dumped(place_of(self)); });
}

PyObject* to_xml(PyObject* self, PyObject*) {
  return new_reference([self] { return saved(place_of(self).held->table); });
}

PyObject* problems(PyObject* self, void*) {
  return new_reference([self] {
    py::list all;
    for (ParseProblem const& problem : place_of(self).held->problems) {
      py::dict row;
      row["at"] = problem.offset;
      row["tag"] = problem.tag;
      row["code"] = static_cast<int>(problem.code);
      row["what"] = problem.text;
      all.append(row);
    }
    return all;
  });
}

PyObject* element(PyObject* self, void*) {
  return new_reference([self] { return utf8(place_of(self).element); });
}

/// The object of a descriptor's own class, where the table keeps its bytes alone.
PyObject* content(PyObject* self, void*) {
  return new_reference([self]() -> py::object {
    Place const& place = place_of(self);
    auto const* const kept = dynamic_cast<DescriptorGeneral const*>(&descriptor_of(self));
    if (kept == nullptr || !place.held->has_tags_of_all_tables) return py::none();
    auto built = extended::build(*kept, extended::Malformed::is_nothing);
    if (built == nullptr) return py::none();
    auto held = std::make_shared<Held>();
    held->settings = place.held->settings;
    held->extended = std::move(built);
    DescriptorBase const* const descriptor = held->extended.get();
    return make_node({std::move(held), descriptor, descriptor->get_tag_text()});
  });
}

PyObject* describe(PyObject* self) {
  return new_reference([self] { return description(place_of(self), Py_TYPE(self)->tp_name); });
}

PyMethodDef of_all[] = {{"to_dict", to_dict, METH_NOARGS,
                         "to_dict()\n--\n\nAll that it holds, as `sivane-inspect json` prints it: plain "
                         "values under the names of documents."},
                        {"__dir__", names, METH_NOARGS, "The fields, and what every object of the type has."},
                        {}};
PyMethodDef of_tables[] = {
    {"dump", dump, METH_NOARGS,
     "dump()\n--\n\nLabelled text; a byte of the section is the character of its number."},
    {"to_xml", to_xml, METH_NOARGS, "to_xml()\n--\n\nThe table as an XML document, which `load_xml` reads."},
    {}};
PyMethodDef of_descriptors[] = {
    {"dump", dump, METH_NOARGS,
     "dump()\n--\n\nLabelled text; a byte of the section is the character of its number."},
    {}};
PyGetSetDef got_of_tables[] = {
    {"problems", problems, nullptr,
     "What tolerant parsing passed over: a list of dicts with `at`, `tag`, `code` and `what`.", nullptr},
    {}};
PyGetSetDef got_of_descriptors[] = {
    {"element", element, nullptr, "What documents call the descriptor.", nullptr},
    {"content", content, nullptr,
     "The descriptor with the fields of its class where the table keeps its bytes alone; None where it has "
     "no such "
     "class.",
     nullptr},
    {}};

}  // namespace

py::object make_node(Place place) {
  PyTypeObject* const type = type_of(place);
  PyObject* const made = type->tp_alloc(type, 0);
  if (made == nullptr) throw py::error_already_set();
  Node* const node = reinterpret_cast<Node*>(made);
  new (&node->place) Place(std::move(place));
  new (&node->known) decltype(node->known)();
  return py::reinterpret_steal<py::object>(made);
}

py::object make_table_node(std::shared_ptr<Held const> held) {
  AnyTable const* const table = &held->table;
  return make_node({std::move(held), table});
}

void add_nodes(py::module_& module) {
  NodeSlots slots;
  slots.size = static_cast<int>(sizeof(Node));
  slots.all = {{Py_tp_new, reinterpret_cast<void*>(refuse_to_make)},
               {Py_tp_dealloc, reinterpret_cast<void*>(dealloc)},
               {Py_tp_getattro, reinterpret_cast<void*>(get_attribute)},
               {Py_tp_repr, reinterpret_cast<void*>(describe)}};
  slots.methods = of_all;
  slots.table_methods = of_tables;
  slots.table_properties = got_of_tables;
  slots.descriptor_methods = of_descriptors;
  slots.descriptor_properties = got_of_descriptors;
  add_node_types(module, slots);
}

}  // namespace sivane::python
