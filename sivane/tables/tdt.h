// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/time.h>
#include <sivane/tables/section.h>

#include <iosfwd>

namespace sivane {

/// Time and date table (ETSI EN 300 468, 5.2.5). Accepts table id 0x70. Bytes after the time are ignored;
/// its dump leaves the stream decimal. Throws "too little data" where the time does not fit.
class SIVANE_API Tdt final : public PsiBase {
 public:
  SIVANE_TABLE
  bool is_syntax_indicator_valid(int indicator) const override;

  DateTime UTC_time;  ///< UTC
};

}  // namespace sivane
