// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "documents.h"

#include <sivane/dom/document.h>

#include <sstream>
#include <type_traits>
#include <utility>

#include "attributes.h"
#include "values.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

/// Does something with a table of whichever class.
template <class Any, class Act>
void with(Any& table, Act act) {
  std::visit(
      [&act](auto& one) {
        if constexpr (!std::is_same_v<std::remove_cvref_t<decltype(one)>, std::monostate>) act(one);
      },
      table);
}

std::string name_of(IXMLDOMNode* node) {
  std::u16string wide;
  node->get_nodeName(&wide);
  std::string name;
  for (char16_t const letter : wide) name += letter < 0x80 ? static_cast<char>(letter) : '?';
  return name;
}

std::string hexadecimal(char const* name, int value, int digits) {
  std::ostringstream text;
  text << ' ' << name << "=0x" << std::hex;
  text.fill('0');
  text.width(digits);
  text << value;
  return text.str();
}

/// A field with its value, or of a list how many items there are.
std::string field_text(Place const& place, py::handle name) {
  auto const field = name.cast<std::string>();
  py::object const value = attribute(place, field);
  bool const is_list = py::isinstance<py::tuple>(value);
  return field +
         (is_list ? '[' + std::to_string(py::len(value)) + ']' : '=' + py::repr(value).cast<std::string>());
}

}  // namespace

py::str dumped(Place const& place) {
  std::ostringstream text;
  text.exceptions(std::ios::badbit);  // a stream that lacks memory would leave out lines and say nothing
  if (auto const* const table = std::get_if<AnyTable const*>(&place.of)) {
    with(**table, [&text](auto const& one) { one.dump_state(text); });
  } else {
    std::get<DescriptorBase const*>(place.of)->dump_state(text);
  }
  std::string const bytes = text.str();
  PyObject* const string =
      PyUnicode_DecodeLatin1(bytes.data(), static_cast<Py_ssize_t>(bytes.size()), nullptr);
  if (string == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(string);
}

py::str saved(AnyTable const& table) {
  dom::Document document;
  auto const root = document.make_root(std::string(class_name(table)));
  // A refusal leaves what was saved before it, which is all there is of a DsmCC.
  with(table, [&](auto const& one) { one.SaveSection(document.dom(), root.get()); });
  return utf8(document.save_string());
}

std::shared_ptr<Held> loaded(std::string const& text, SharedSettings settings) {
  dom::Document const document = dom::Document::load_string(text);
  auto const root = document.root_node();
  std::string const name = name_of(root.get());
  auto held = std::make_shared<Held>();
  held->settings = std::move(settings);
  held->table = make_table(name);
  held->has_tags_of_all_tables = name != "Ait";
  if (held->table.index() == 0) throw error(("no table class is called " + name).c_str());
  with(held->table, [&root](auto& one) { one.Parse(static_cast<void*>(root.get())); });
  return held;
}

py::str description(Place const& place, char const* type) {
  std::string text = std::string("<") + type;
  if (auto const* const table = std::get_if<AnyTable const*>(&place.of)) {
    with(**table, [&text](auto const& one) { text += hexadecimal("table_id", one.table_id, 2); });
  } else if (auto const* const descriptor = std::get_if<DescriptorBase const*>(&place.of)) {
    text += ' ' + std::string(place.element) + hexadecimal("tag", (*descriptor)->tag, 2);
  } else {
    for (py::handle const name : attribute_names(place)) text += ' ' + field_text(place, name);
  }
  return utf8(text + '>');
}

}  // namespace sivane::python
