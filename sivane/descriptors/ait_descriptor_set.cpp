// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>

#define SIVANE_SET AitDescriptorSet
#define SIVANE_SET_ROWS <sivane/descriptors/ait_descriptor_rows.inc>
#include <sivane/descriptors/set_rows.inc>

namespace sivane {

void AitDescriptorSet::ParseDescriptorAit(DescriptorBytes descriptor) {
  int const row = row_of_tag[static_cast<std::size_t>(descriptor.tag())];
  rows[row].operations->parse(DescriptorStorage::vector(groups_, rows, row), descriptor);
}

void AitDescriptorSet::parse_descriptors(Reader& reader, int size, Failure failure, LoopEnd end) {
  reader.descriptor_loop(size, failure, end, [this](DescriptorLoop& loop) {
    DescriptorStorage::parse(groups_, rows, row_of_tag, loop);
  });
}

void AitDescriptorSet::clear_general_descriptors() {
  DescriptorStorage::erase(groups_, row_number::get_general_descriptors);
}

void AitDescriptorSet::dump_descriptors(std::ostream& os) const {
  DescriptorStorage::each(groups_,
                          [&os](int, DescriptorBase const& descriptor) { descriptor.dump_state(os); });
}

}  // namespace sivane
