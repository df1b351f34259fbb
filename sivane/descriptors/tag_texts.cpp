// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// `get_tag_text` of every class that has a row; that of DescriptorGeneral goes by its tag.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>

namespace sivane {

#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) SIVANE_ODD(tag, Class, getter, element, element)
#define SIVANE_ODD(tag, Class, getter, element, tag_text) \
  char const* Class::get_tag_text() const { return tag_text; }
#include <sivane/descriptors/descriptor_rows.inc>

#define SIVANE_GENERAL_ROW(kind, getter, element)
#define SIVANE_ROW(tag, Class, getter, element) SIVANE_ODD(tag, Class, getter, element, element)
#define SIVANE_ODD(tag, Class, getter, element, tag_text) \
  char const* Class::get_tag_text() const { return tag_text; }
#include <sivane/descriptors/ait_descriptor_rows.inc>

}  // namespace sivane
