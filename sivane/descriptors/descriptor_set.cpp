// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>

namespace sivane {

namespace {

/// Rows are numbered in their order, each by the name of its getter.
namespace row_number {
enum : int {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) getter,
#define SIVANE_GENERAL_ROW(kind, getter, element) getter,
#include <sivane/descriptors/descriptor_rows.inc>
};
}  // namespace row_number

constexpr DescriptorRow rows[] = {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) {tag, &parse_into_row<Class>},
#define SIVANE_GENERAL_ROW(kind, getter, element) {DescriptorRow::kind, &parse_into_row<DescriptorGeneral>},
#include <sivane/descriptors/descriptor_rows.inc>
};

constexpr std::array<unsigned char, 256> row_of_tag = rows_of_tags(rows);

}  // namespace

void DescriptorSet::ParseDescriptor(DescriptorBytes descriptor) {
  int const row = row_of_tag[static_cast<std::size_t>(descriptor.tag())];
  rows[row].parse(groups_, row, descriptor);
}

bool DescriptorSet::parse_descriptors(Reader& reader, int size, Failure overrun) {
  return reader.each_descriptor(size, overrun, [this](DescriptorBytes d) { ParseDescriptor(d); });
}

void DescriptorSet::clear_general_descriptors() {
  DescriptorStorage::erase(groups_, row_number::get_general_descriptors);
}

#define SIVANE_ROW(tag, Class, getter, element, tag_text)                \
  std::vector<Class> const& DescriptorSet::getter() const {              \
    return DescriptorStorage::items<Class>(groups_, row_number::getter); \
  }
#define SIVANE_GENERAL_ROW(kind, getter, element)                                    \
  std::vector<DescriptorGeneral> const& DescriptorSet::getter() const {              \
    return DescriptorStorage::items<DescriptorGeneral>(groups_, row_number::getter); \
  }
#include <sivane/descriptors/descriptor_rows.inc>

}  // namespace sivane
