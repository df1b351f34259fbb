// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/descriptor.h>
#include <sivane/fields/field_visitor.h>

namespace sivane {

void FieldVisitor::number(Field const&, std::int64_t) {}
void FieldVisitor::real(Field const&, double) {}
void FieldVisitor::flag(Field const&, bool) {}
void FieldVisitor::text(Field const&, std::string_view) {}
void FieldVisitor::string(Field const&, std::string_view) {}
void FieldVisitor::code(Field const&, std::string_view) {}
void FieldVisitor::bytes(Field const&, unsigned char const*, std::size_t) {}
void FieldVisitor::date(Field const&, DateTime const&) {}
void FieldVisitor::duration(Field const&, Duration const&) {}
bool FieldVisitor::wants_list(Field const&) { return true; }
void FieldVisitor::begin_list(Field const&, std::size_t) {}
void FieldVisitor::end_list() {}
void FieldVisitor::begin_record(Field const&) {}
void FieldVisitor::end_record() {}
void FieldVisitor::begin_descriptor(std::string_view, DescriptorBase const&) {}
void FieldVisitor::end_descriptor() {}

void FieldVisitor::record(Field const& field, FieldHolder const& record) {
  begin_record(field);
  record.visit(*this);
  end_record();
}

void FieldVisitor::descriptor(std::string_view element, DescriptorBase const& descriptor) {
  begin_descriptor(element, descriptor);
  descriptor.visit(*this);
  end_descriptor();
}

}  // namespace sivane
