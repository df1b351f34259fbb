// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/time.h>
#include <sivane/tables/section.h>

#include <iosfwd>

namespace sivane {

/// Time offset table: the time and, in descriptors, local offsets from it (ETSI EN 300 468, 5.2.6). Accepts
/// table id 0x73. Its dump prints no descriptor and leaves the stream decimal.
///
/// Throws "descriptor start end mismatch" where the descriptors do not end at their length, "too little data"
/// where a field leaves the section. `_reset` empties the general descriptors alone.
class SIVANE_API Tot final : public PsiBase, public DescriptorSet {
 public:
  SIVANE_TABLE
  bool is_syntax_indicator_valid(int indicator) const override;

  DateTime UTC_time;        ///< UTC
  unsigned long crc32 = 0;  ///< 32 bits, after the descriptors; compared with nothing
};

}  // namespace sivane
