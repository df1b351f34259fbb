// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "node_types.h"

#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>

#include <array>
#include <string>
#include <typeindex>
#include <unordered_map>

namespace sivane::python {

namespace py = pybind11;

namespace {

// As long as the process: the interpreter never unloads a module.
struct Types {
  PyTypeObject* record = nullptr;
  PyTypeObject* descriptor = nullptr;
  std::array<PyTypeObject*, std::variant_size_v<AnyTable>> tables = {};  // by the index of their class
  std::unordered_map<std::type_index, PyTypeObject*> descriptors;
} types;

class TypeMaker {
 public:
  TypeMaker(py::module_& module, NodeSlots const& slots) : module_(module), slots_(slots) {}

  /// `name` and `documentation` are literals.
  PyTypeObject* make(char const* name, char const* documentation, PyTypeObject* base,
                     PyMethodDef* methods = nullptr, PyGetSetDef* properties = nullptr) {
    std::vector<PyType_Slot> slots = slots_.all;
    slots.push_back({Py_tp_doc, const_cast<char*>(documentation)});
    if (methods != nullptr) slots.push_back({Py_tp_methods, methods});
    if (properties != nullptr) slots.push_back({Py_tp_getset, properties});
    slots.push_back({0, nullptr});
    PyType_Spec spec = {name, slots_.size, 0,
                        Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_IMMUTABLETYPE, slots.data()};
    PyObject* const type = PyType_FromSpecWithBases(&spec, reinterpret_cast<PyObject*>(base));
    if (type == nullptr) throw py::error_already_set();
    module_.attr(std::string_view(name).substr(sizeof "sivane." - 1).data()) = py::handle(type);
    return reinterpret_cast<PyTypeObject*>(type);
  }

 private:
  py::module_& module_;
  NodeSlots const& slots_;
};

constexpr char const* of_fields =
    "What has fields: they read as attributes under the names of the C++ members, and `dir` lists them.";
constexpr char const* of_table = "A table; its fields, entries and descriptors read as attributes.";
constexpr char const* of_descriptor = "A descriptor; `tag`, `length` and its fields read as attributes.";

void make_tables(TypeMaker& maker, PyTypeObject* base) {
  auto* next = &types.tables[0];
  *next = base;  // of none
#define SIVANE_TABLE_ROW(Class, ...) *++next = maker.make("sivane." #Class, of_table, base);
#include <sivane/tables/table_rows.inc>
}

template <class Class>
void make_descriptor(TypeMaker& maker, char const* name) {
  auto const [entry, is_new] = types.descriptors.try_emplace(typeid(Class), nullptr);
  if (is_new) entry->second = maker.make(name, of_descriptor, types.descriptor);
}

void make_descriptors(TypeMaker& maker) {
#define SIVANE_MAKE(tag, Class, ...) make_descriptor<Class>(maker, "sivane." #Class);
#define SIVANE_ROW SIVANE_MAKE
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_ROW SIVANE_MAKE
#include <sivane/descriptors/ait_descriptor_rows.inc>
#define SIVANE_EXTENDED_ROW(tag, extension, specifier, Class, name) SIVANE_MAKE(tag, Class)
#include <sivane/descriptors/extended/extended_descriptor_rows.inc>
}

}  // namespace

void add_node_types(py::module_& module, NodeSlots const& slots) {
  TypeMaker maker(module, slots);
  PyTypeObject* const fields = maker.make("sivane.Fields", of_fields, nullptr, slots.methods);
  PyTypeObject* const table =
      maker.make("sivane.Table", of_table, fields, slots.table_methods, slots.table_properties);
  types.record = maker.make("sivane.Record", "An entry of a table, or a record of a descriptor.", fields);
  types.descriptor = maker.make("sivane.Descriptor", of_descriptor, fields, slots.descriptor_methods,
                                slots.descriptor_properties);
  make_tables(maker, table);
  make_descriptors(maker);
}

PyTypeObject* type_of(Place const& place) {
  if (auto const* const table = std::get_if<AnyTable const*>(&place.of))
    return types.tables[(*table)->index()];
  if (std::holds_alternative<FieldHolder>(place.of)) return types.record;
  DescriptorBase const& descriptor = *std::get<DescriptorBase const*>(place.of);
  auto const found = types.descriptors.find(typeid(descriptor));
  return found == types.descriptors.end() ? types.descriptor : found->second;
}

}  // namespace sivane::python
