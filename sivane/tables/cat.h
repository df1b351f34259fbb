// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/export.h>
#include <sivane/tables/section.h>

#include <iosfwd>

namespace sivane {

/// Conditional access table: the systems and where their management messages travel (ISO/IEC
/// 13818-1, 2.4.4.6). Accepts table id 0x01. Its dump prints no descriptor.
///
/// Throws "invalid descriptor size" where a descriptor is longer than what is left, "invalid descriptor tag"
/// for any descriptor but a `DescriptorCa`; those before it stay.
class SIVANE_API Cat final : public PsiTableBase, public DescriptorSet {
 public:
  SIVANE_TABLE
  bool is_valid_syntax_indicator(int indicator) const override;
};

}  // namespace sivane
