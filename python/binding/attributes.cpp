// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "attributes.h"

#include "values.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

/// Is told one field, and converts it.
class AttributeFinder final : public FieldVisitor {
 public:
  AttributeFinder(Place const& place, std::string_view wanted) : FieldVisitor(wanted), place_(place) {}

  py::object found;

 private:
  void number(Field const&, std::int64_t value) override {
    give([value] { return py::int_(value); });
  }
  void real(Field const&, double value) override {
    give([value] { return py::float_(value); });
  }
  void flag(Field const&, bool value) override {
    give([value] { return py::bool_(value); });
  }
  void text(Field const&, std::string_view text) override {
    give([this, text] { return utf8(place_.held->settings->texts.utf8(text)); });
  }
  void string(Field const&, std::string_view value) override {
    give([value] { return utf8(value); });
  }
  void code(Field const&, std::string_view letters) override {
    give([letters] { return utf8(letters.substr(0, letters.find('\0'))); });
  }
  void bytes(Field const&, unsigned char const* data, std::size_t size) override {
    give([data, size] { return python::bytes(data, size); });
  }
  void date(Field const&, DateTime const& value) override {
    give([&value] { return python::date(value); });
  }
  void duration(Field const&, Duration const& value) override {
    give([&value] { return python::duration(value); });
  }

  void begin_list(Field const&, std::size_t size) override { found = items_ = py::tuple(size); }
  void end_list() override { items_ = {}; }
  void record(Field const&, FieldHolder const& record) override {
    give([&] { return make_node({place_.held, record}); });
  }
  void descriptor(std::string_view element, DescriptorBase const& descriptor) override {
    give([&] { return make_node({place_.held, &descriptor, element}); });
  }

  /// Takes the value of the field, or an item of its list.
  template <class Make>
  void give(Make make) {
    if (items_) {
      PyTuple_SET_ITEM(items_.ptr(), next_++, py::object(make()).release().ptr());
    } else {
      found = make();
    }
  }

  Place const& place_;
  py::object items_;  // the list that is wanted, while it is told
  Py_ssize_t next_ = 0;
};

class NameLister final : public FieldVisitor {
 public:
  py::list names;

 private:
  void number(Field const& field, std::int64_t) override { add(field); }
  void real(Field const& field, double) override { add(field); }
  void flag(Field const& field, bool) override { add(field); }
  void text(Field const& field, std::string_view) override { add(field); }
  void string(Field const& field, std::string_view) override { add(field); }
  void code(Field const& field, std::string_view) override { add(field); }
  void bytes(Field const& field, unsigned char const*, std::size_t) override { add(field); }
  void date(Field const& field, DateTime const&) override { add(field); }
  void duration(Field const& field, Duration const&) override { add(field); }
  bool wants_list(Field const& field) override {
    add(field);
    return false;
  }
  void record(Field const& field, FieldHolder const&) override { add(field); }

  void add(Field const& field) { names.append(utf8(field.member)); }
};

}  // namespace

py::object attribute(Place const& place, std::string_view name) {
  if (name.empty()) return {};  // a visitor for no name would be told all fields
  AttributeFinder finder(place, name);
  place.visit(finder);
  return finder.found;
}

py::list attribute_names(Place const& place) {
  NameLister lister;
  place.visit(lister);
  return lister.names;
}

}  // namespace sivane::python
