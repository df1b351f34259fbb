// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Documents are not supported yet. Until they are, loading is a clear failure and saving is refused, so that
// no host takes an empty element for a saved one.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/error.h>
#include <sivane/tables/ait.h>
#include <sivane/tables/bat.h>
#include <sivane/tables/cat.h>
#include <sivane/tables/dsm_cc.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/nit.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>
#include <sivane/tables/rst.h>
#include <sivane/tables/sdt.h>
#include <sivane/tables/tdt.h>
#include <sivane/tables/tot.h>

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
void Cat::_parse(void*) { not_supported(); }
bool Cat::_save_section(void*, void*) const { return false; }
void Pmt::_parse(void*) { not_supported(); }
bool Pmt::_save_section(void*, void*) const { return false; }
void Nit::_parse(void*) { not_supported(); }
bool Nit::_save_section(void*, void*) const { return false; }
void Bat::_parse(void*) { not_supported(); }
bool Bat::_save_section(void*, void*) const { return false; }
void Sdt::_parse(void*) { not_supported(); }
bool Sdt::_save_section(void*, void*) const { return false; }
void Eit::_parse(void*) { not_supported(); }
bool Eit::_save_section(void*, void*) const { return false; }
void Tdt::_parse(void*) { not_supported(); }
bool Tdt::_save_section(void*, void*) const { return false; }
void Tot::_parse(void*) { not_supported(); }
bool Tot::_save_section(void*, void*) const { return false; }
void Rst::_parse(void*) { not_supported(); }
bool Rst::_save_section(void*, void*) const { return false; }
void Ait::_parse(void*) { not_supported(); }
bool Ait::_save_section(void*, void*) const { return false; }
void DsmCC::_parse(void*) { not_supported(); }
bool DsmCC::_save_section(void*, void*) const { return false; }

void DescriptorGeneral::_parse(void*) { not_supported(); }
bool DescriptorGeneral::_save_section(void*, void*) const { return false; }

#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  void Class::_parse(void*) { not_supported(); }          \
  bool Class::_save_section(void*, void*) const { return false; }
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_ROW(tag, Class, getter, element, tag_text) \
  void Class::_parse(void*) { not_supported(); }          \
  bool Class::_save_section(void*, void*) const { return false; }
#include <sivane/descriptors/ait_descriptor_rows.inc>

}  // namespace sivane
