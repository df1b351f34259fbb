// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>
#include <sivane/foundation/parse_state.h>

#define SIVANE_SET AitDescriptorSet
#define SIVANE_SET_PARSE ParseDescriptorAit
// NOLINTNEXTLINE(bugprone-macro-parentheses)
#define SIVANE_SET_ROWS <sivane/descriptors/ait_descriptor_rows.inc>
#include <sivane/descriptors/set_rows.inc>

namespace sivane {

void AitDescriptorSet::dump_descriptors(std::ostream& os) const {
  DescriptorStorage::each(groups_,
                          [&os](int, DescriptorBase const& descriptor) { descriptor.dump_state(os); });
}

}  // namespace sivane
