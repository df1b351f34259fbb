// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What the frames of sections and every descriptor begin with.
#include <sivane/descriptors/descriptor.h>
#include <sivane/fields/field_list.h>
#include <sivane/tables/section.h>

#include <typeinfo>

namespace sivane {

void PsiTableBase::_head_fields(FieldList& f) {
  f.add(FIELD(table_id), 8, "failed to get table_id");
  f.add(FIELD(syntax_indicator), 1, "failed to get syntax_indicator");
  f.add(FIELD(section_length), 12, "failed to get section_length");
  f.add(FIELD(context_id), 16, "failed to get context_id");
  f.add(FIELD(version_number), 5, "failed to get version_number");
  f.add(FIELD(section_number), 8, "failed to get section_number");
  f.add(FIELD(last_section_number), 8, "failed to get last_section_number");
  f.add(FIELD(current_next_indicator), 1, "failed to get current_next_indicator");
  f.add(FIELD(crc32), 32, "failed to get crc32");
}

void PsiBase::_head_fields(FieldList& f) {
  f.add(FIELD(table_id), 8, "failed to get table_id");
  f.add(FIELD(section_length), 12, "failed to get section_length");
}

void DescriptorBase::_head_fields(FieldList& f) {
  f.add(FIELD_AS("descriptor_id", tag), 8, "failed to get descriptor_id");
  f.add(FIELD_AS("descriptor_length", length), 8, "failed to get descriptor_length");
}

// A class of the host's own may have none.
void PsiTableBase::_fields(FieldList&) {}
void PsiBase::_fields(FieldList&) {}
void DescriptorBase::_fields(FieldList&) {}

void DescriptorGeneral::_fields(FieldList& f) { f.add(FIELD_AS("private_data", data)); }

namespace {

/// The head's fields, and those that the class adds.
template <class Base>
AnyObject whole(Base const& object) {
  return {const_cast<Base*>(&object), [](void* self, FieldList& f) {
            static_cast<Base*>(self)->_head_fields(f);
            static_cast<Base*>(self)->_fields(f);
          }};
}

template <class Base>
bool same(Base const& one, Base const& other) {
  return typeid(one) == typeid(other) && same_fields(whole(one), whole(other));
}

}  // namespace

void PsiTableBase::visit(FieldVisitor& visitor) const { visit_fields(whole(*this), visitor); }
void PsiBase::visit(FieldVisitor& visitor) const { visit_fields(whole(*this), visitor); }
void DescriptorBase::visit(FieldVisitor& visitor) const { visit_fields(whole(*this), visitor); }

bool operator==(PsiTableBase const& one, PsiTableBase const& other) { return same(one, other); }
bool operator==(PsiBase const& one, PsiBase const& other) { return same(one, other); }
bool operator==(DescriptorBase const& one, DescriptorBase const& other) { return same(one, other); }

}  // namespace sivane
