// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>
#include <sivane/descriptors/extended/extended.h>
#include <sivane/fields/field_visitor.h>
#include <sivane/tables/any_table.h>

#include <memory>
#include <string_view>
#include <variant>
#include <vector>

#include "settings.h"

namespace sivane::python {

/// What the objects of one table, or of one descriptor built on demand, have in common: it lives as long as
/// any of them.
struct Held {
  SharedSettings settings;
  AnyTable table = {};
  std::vector<ParseProblem> problems = {};
  std::unique_ptr<ExtendedDescriptor> extended = nullptr;
  bool has_tags_of_all_tables = true;  ///< the tags are not those of an AIT
};

/// What an object stands for, within what is held.
struct Place {
  std::shared_ptr<Held const> held;
  /// The table that is held, an entry or record, or a descriptor.
  std::variant<AnyTable const*, FieldHolder, DescriptorBase const*> of;
  std::string_view element = {};  ///< of a descriptor: what documents call it

  void visit(FieldVisitor& visitor) const;
};

/// A new object for a table, entry, record or descriptor. What it has is converted where it is asked for.
pybind11::object make_node(Place place);
/// The same for a table.
pybind11::object make_table_node(std::shared_ptr<Held const> held);

/// Makes `sivane.Table`, `sivane.Record`, `sivane.Descriptor`, and below them a type for each class that the
/// library has.
void add_nodes(pybind11::module_& module);

}  // namespace sivane::python
