// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Documents are not supported yet. Until they are, loading is a clear failure and saving is refused, so that
// no host takes an empty element for a saved one.
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/error.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/section.h>

namespace sivane {

namespace {
[[noreturn]] void not_supported() { throw error("XML is not supported yet"); }
}  // namespace

void PsiTableBase::Parse(void*) { not_supported(); }
bool PsiTableBase::SaveSection(void*, void*) const { return false; }
void PsiBase::Parse(void*) { not_supported(); }
bool PsiBase::SaveSection(void*, void*) const { return false; }

void Pat::_parse(void*) { not_supported(); }
bool Pat::_save_section(void*, void*) const { return false; }

void DescriptorGeneral::_parse(void*) { not_supported(); }
bool DescriptorGeneral::_save_section(void*, void*) const { return false; }

#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  void Class::_parse(void*) { not_supported(); }          \
  bool Class::_save_section(void*, void*) const { return false; }
#include <sivane/descriptors/descriptor_rows.inc>

}  // namespace sivane
