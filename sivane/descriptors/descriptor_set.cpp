// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>

#define SIVANE_SET DescriptorSet
#define SIVANE_SET_ROWS <sivane/descriptors/descriptor_rows.inc>
#include <sivane/descriptors/set_rows.inc>

namespace sivane {

void DescriptorSet::ParseDescriptor(DescriptorBytes descriptor) {
  int const row = row_of_tag[static_cast<std::size_t>(descriptor.tag())];
  rows[row].operations->parse(DescriptorStorage::vector(groups_, rows, row), descriptor);
}

void DescriptorSet::parse_descriptors(Reader& reader, int size, Failure failure, LoopEnd end) {
  reader.descriptor_loop(size, failure, end, [this](DescriptorLoop& loop) {
    DescriptorStorage::parse(groups_, rows, row_of_tag, loop);
  });
}

void DescriptorSet::clear_general_descriptors() {
  DescriptorStorage::erase(groups_, row_number::get_general_descriptors);
}

}  // namespace sivane
