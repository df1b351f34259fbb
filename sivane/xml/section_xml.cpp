// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The headers of sections in documents. What a document states is taken over: no check of a section runs on
// it.
#include <sivane/tables/section.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

namespace {

constexpr char const* no_attributes = "failed to get attribute map";

void header(Archive& ar, PsiTableBase& t) {
  ar.attr(u"table_id", t.table_id, "failed to get table_id");
  ar.attr(u"syntax_indicator", t.syntax_indicator, "failed to get syntax_indicator");
  ar.attr(u"section_length", t.section_length, "failed to get section_length");
  ar.attr(u"context_id", t.context_id, "failed to get context_id");
  ar.attr(u"version_number", t.version_number, "failed to get version_number");
  ar.attr(u"section_number", t.section_number, "failed to get section_number");
  ar.attr(u"last_section_number", t.last_section_number, "failed to get last_section_number");
  ar.attr(u"current_next_indicator", t.current_next_indicator, "failed to get current_next_indicator");
  ar.attr(u"crc32", t.crc32, "failed to get crc32");
}

void header(Archive& ar, PsiBase& t) {
  ar.attr(u"table_id", t.table_id, "failed to get table_id");
  ar.attr(u"section_length", t.section_length, "failed to get section_length");
}

template <class Frame>
bool save_header(Frame const& table, void* document, void* element) {
  return xml::save(table, document, element, [](Archive& ar, Frame& same) { header(ar, same); });
}

template <class Frame>
void load_section(Frame& table, void* node) {
  Archive archive(node, no_attributes);
  header(archive, table);
  table._parse(node);
  table.valid = true;
}

}  // namespace

bool PsiTableBase::SaveSection(void* document, void* element) const {
  return save_header(*this, document, element) && _save_section(document, element);
}

void PsiTableBase::Parse(void* node) { load_section(*this, node); }

bool PsiBase::SaveSection(void* document, void* element) const {
  return save_header(*this, document, element) && _save_section(document, element);
}

void PsiBase::Parse(void* node) { load_section(*this, node); }

}  // namespace sivane
