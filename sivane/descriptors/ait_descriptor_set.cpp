// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>
#include <sivane/foundation/parse_state.h>

#define SIVANE_SET AitDescriptorSet
// NOLINTNEXTLINE(bugprone-macro-parentheses)
#define SIVANE_SET_ROWS <sivane/descriptors/ait_descriptor_rows.inc>
#include <sivane/descriptors/set_rows.inc>

namespace sivane {

void AitDescriptorSet::ParseDescriptorAit(DescriptorBytes descriptor) {
  int const row = row_of_tag[static_cast<std::size_t>(descriptor.tag())];
  rows[row].operations->parse(DescriptorStorage::vector(groups_, rows, row), descriptor);
}

void AitDescriptorSet::file_as_bytes(DescriptorBytes descriptor) {
  int const row = descriptor.tag() < 0x80 ? row_number::get_general_descriptors
                                          : row_number::get_user_private_descriptors;
  rows[row].operations->parse(DescriptorStorage::vector(groups_, rows, row), descriptor);
}

void AitDescriptorSet::parse_descriptors(Reader& reader, int size, Failure failure, LoopEnd end) {
  ParseState* const state = reader.state();
  if (state != nullptr && state->has_options()) {
    return file_descriptors(
        reader, size, failure, end, [this](DescriptorBytes d) { ParseDescriptorAit(d); },
        [this](DescriptorBytes d) { file_as_bytes(d); });
  }
  reader.descriptor_loop(size, failure, end, [this, state](DescriptorLoop& loop) {
    DescriptorStorage::parse(groups_, rows, row_of_tag, loop);
    if (state != nullptr) state->charge(loop.taken(), loop.last());
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
