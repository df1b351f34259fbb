// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// A DSM-CC section, its payload uninterpreted (ISO/IEC 13818-6, 9.2). Accepts table ids 0x3B and 0x3C. A
/// second `Parse` replaces the payload; neither dumps nor documents hold it, and `reset` leaves it. Throws
/// "too little data" where section_length is below 9.
class SIVANE_API DsmCC final : public PsiTableBase {
 public:
  SIVANE_TABLE
  bool _save_section(void* document, void* element) const override;
  /// `data`.
  std::vector<unsigned char> const& get_data() const { return data; }
  int get_table_extension() const { return context_id; }  ///< 16 bits

  std::vector<unsigned char> data;  ///< what is between the header and the CRC
};

}  // namespace sivane
