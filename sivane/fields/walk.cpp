// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The visit of an object: its fields as a visitor is told them.
#include <sivane/descriptors/descriptor_storage.h>
#include <sivane/fields/field_list.h>
#include <sivane/tables/any_table.h>

#include <string_view>
#include <type_traits>

namespace sivane {

namespace {

#define SIVANE_NAME(tag, Class, getter, element) element,
#define SIVANE_ROW SIVANE_NAME
constexpr std::string_view element_names[] = {
#include <sivane/descriptors/descriptor_rows.inc>
};
#define SIVANE_ROW SIVANE_NAME
constexpr std::string_view ait_element_names[] = {
#include <sivane/descriptors/ait_descriptor_rows.inc>
};

constexpr Field descriptor_list = {"descriptors", "descriptors"};

/// Gives each form of a member to the operation of its kind.
class TellValue {
 public:
  TellValue(FieldVisitor& visitor, Field const& field) : visitor_(visitor), field_(field) {}

  void operator()(bool const* v) const { visitor_.flag(field_, *v); }
  void operator()(double const* v) const { visitor_.real(field_, *v); }
  void operator()(std::string const* v) const { visitor_.string(field_, *v); }
  void operator()(BroadcastString v) const { visitor_.text(field_, *v.string); }
  void operator()(Text const* v) const {
    if (v->selector() < 0) return visitor_.text(field_, *v);
    visitor_.text(field_, static_cast<char>(v->selector()) + *v);
  }
  void operator()(std::vector<unsigned char> const* v) const { visitor_.bytes(field_, v->data(), v->size()); }
  void operator()(unsigned char const (*v)[16]) const { visitor_.bytes(field_, *v, sizeof *v); }
  void operator()(char const (*v)[4]) const { visitor_.code(field_, std::string_view(*v, 3)); }
  void operator()(DateTime const* v) const { visitor_.date(field_, *v); }
  void operator()(Duration const* v) const { visitor_.duration(field_, *v); }

  void operator()(ApplicationIdentifier const* v) const {
    AnyObject const identifier(*v);
    visitor_.record(field_, FieldHolder(identifier.object, identifier.fields));
  }

  void operator()(std::vector<std::string> const* v) const {
    if (!visitor_.wants_list(field_)) return;
    visitor_.begin_list(field_, v->size());
    for (std::string const& item : *v) visitor_.string(item_, item);
    visitor_.end_list();
  }

  template <class Number>
  void operator()(Number const* v) const {
    visitor_.number(field_, static_cast<std::int64_t>(*v));
  }
  template <class Number>
  void operator()(std::vector<Number> const* v) const {
    if (!visitor_.wants_list(field_)) return;
    visitor_.begin_list(field_, v->size());
    for (Number const item : *v) visitor_.number(item_, static_cast<std::int64_t>(item));
    visitor_.end_list();
  }

 private:
  FieldVisitor& visitor_;
  Field const& field_;
  Field const item_ = {{}, {}, field_.bits, field_.in_documents};
};

class Walk final : public FieldList {
 public:
  explicit Walk(FieldVisitor& visitor) : FieldList(visitor.only_member()), visitor_(visitor) {}

  void descriptors(DescriptorSet& set) override {
    if (has(descriptor_list.member)) set.visit_descriptors(visitor_);
  }
  void descriptors(AitDescriptorSet& set) override {
    if (has(descriptor_list.member)) set.visit_descriptors(visitor_);
  }

 private:
  void value(FieldName const& name, FieldValue value, char const*) override {
    std::visit(TellValue(visitor_, name.field), value);
  }

  void record_list(FieldName const& name, char16_t const*, AnyRecords records) override {
    if (!visitor_.wants_list(name.field)) return;
    Field const item = {{}, {}, 0, name.field.in_documents};
    visitor_.begin_list(name.field, records.size);
    for (std::size_t i = 0; i < records.size; ++i) record(item, records.at(records.vector, i));
    visitor_.end_list();
  }

  void entry_list(FieldName const& name, char16_t const* item, AnyRecords entries, char const*) override {
    record_list(name, item, entries);
  }

  void record_child(FieldName const& name, AnyRecord child) override { record(name.field, child); }
  void date_child(FieldName const& name, DateTime& date) override { visitor_.date(name.field, date); }

  void record(Field const& field, AnyObject object) {
    visitor_.record(field, FieldHolder(object.object, object.fields));
  }

  FieldVisitor& visitor_;
};

void visit_list(DescriptorGroups const& groups, std::string_view const* names, FieldVisitor& visitor) {
  if (!visitor.wants_list(descriptor_list)) return;
  std::size_t size = 0;
  DescriptorStorage::each(groups, [&size](int, DescriptorBase const&) { ++size; });
  visitor.begin_list(descriptor_list, size);
  DescriptorStorage::each(
      groups, [&](int row, DescriptorBase const& descriptor) { visitor.descriptor(names[row], descriptor); });
  visitor.end_list();
}

}  // namespace

void visit_fields(AnyObject object, FieldVisitor& visitor) {
  Walk walk(visitor);
  object.fields(object.object, walk);
}

void FieldHolder::visit(FieldVisitor& visitor) const { visit_fields(AnyObject(object_, fields_), visitor); }

void visit_table(AnyTable const& table, FieldVisitor& visitor) {
  std::visit(
      [&visitor](auto const& any) {
        if constexpr (!std::is_same_v<decltype(any), std::monostate const&>) any.visit(visitor);
      },
      table);
}

void DescriptorSet::visit_descriptors(FieldVisitor& visitor) const {
  visit_list(groups_, element_names, visitor);
}

void AitDescriptorSet::visit_descriptors(FieldVisitor& visitor) const {
  visit_list(groups_, ait_element_names, visitor);
}

}  // namespace sivane
