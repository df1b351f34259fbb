// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "as_dict.h"

#include <sivane/foundation/hex.h>

#include <cmath>
#include <string>
#include <vector>

#include "values.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

py::object text_or_none(std::string const& text) {
  return text.empty() ? py::object(py::none()) : utf8(text);
}

class DictMaker final : public FieldVisitor {
 public:
  explicit DictMaker(Held const& held) : held_(held) {}

  py::dict made;

  /// What is open.
  py::object open() const { return open_.back(); }

  void begin_descriptor(std::string_view element, DescriptorBase const& descriptor) override {
    py::dict const opened;
    add({}, opened);
    open_.push_back(opened);
    opened["tag"] = descriptor.tag;
    opened["name"] = utf8(element);
    descriptor_ = &descriptor;
  }
  void end_descriptor() override {
    auto const* const kept =
        held_.has_tags_of_all_tables ? dynamic_cast<DescriptorGeneral const*>(descriptor_) : nullptr;
    auto const built = kept == nullptr ? nullptr : extended::build(*kept, extended::Malformed::is_nothing);
    if (built != nullptr) {
      begin_record({"content", "content"});
      open_.back()["name"] = utf8(built->get_tag_text());
      built->visit(*this);
      end_record();
    }
    open_.pop_back();
  }

 private:
  void number(Field const& field, std::int64_t value) override {
    add(field, py::int_(static_cast<std::int32_t>(value)));
  }
  void real(Field const& field, double value) override {
    add(field, std::isfinite(value) ? py::object(py::float_(value)) : py::none());
  }
  void flag(Field const& field, bool value) override { add(field, py::bool_(value)); }
  void text(Field const& field, std::string_view text) override {
    add(field, utf8(held_.settings->texts.utf8(text)));
  }
  void string(Field const& field, std::string_view value) override { add(field, utf8(value)); }
  void code(Field const& field, std::string_view letters) override {
    add(field, utf8(letters.substr(0, letters.find('\0'))));
  }
  void bytes(Field const& field, unsigned char const* data, std::size_t size) override {
    std::string digits;
    bin2str(data, digits, static_cast<int>(size));
    add(field, utf8(digits));
  }
  void date(Field const& field, DateTime const& value) override {
    add(field, text_or_none(date_text(value)));
  }
  void duration(Field const& field, Duration const& value) override {
    add(field, text_or_none(duration_text(value)));
  }
  void begin_list(Field const& field, std::size_t) override { open(field, py::list()); }
  void end_list() override { open_.pop_back(); }
  void begin_record(Field const& field) override { open(field, py::dict()); }
  void end_record() override { open_.pop_back(); }

  void open(Field const& field, py::object container) {
    add(field, container);
    open_.push_back(std::move(container));
  }

  /// To what is open: a list, or a dict where the value has a name.
  void add(Field const& field, py::object const& value) {
    py::object const& container = open_.empty() ? made : open_.back();
    if (PyList_Check(container.ptr())) {
      if (PyList_Append(container.ptr(), value.ptr()) != 0) throw py::error_already_set();
    } else if (!field.name.empty()) {
      if (PyDict_SetItem(container.ptr(), utf8(field.name).ptr(), value.ptr()) != 0)
        throw py::error_already_set();
    }
  }

  Held const& held_;
  std::vector<py::object> open_;
  DescriptorBase const* descriptor_ = nullptr;  // the one that is told, or was last
};

}  // namespace

py::dict as_dict(Place const& place) {
  DictMaker maker(*place.held);
  auto const* const descriptor = std::get_if<DescriptorBase const*>(&place.of);
  if (descriptor == nullptr) {
    place.visit(maker);
    return maker.made;
  }
  maker.begin_descriptor(place.element, **descriptor);
  py::dict made = maker.open();
  place.visit(maker);
  maker.end_descriptor();
  return made;
}

}  // namespace sivane::python
