// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <span>

namespace inspect {

/// What is measured, in the order of the report.
enum class Measure {
  ts_sync_loss,
  sync_byte,
  pat,
  continuity_count,
  pmt,
  pid,
  transport,
  crc,
  pcr_repetition,
  pcr_discontinuity,
  pcr_accuracy,
  pts,
  cat,
  nit_actual,
  nit_other,
  si_repetition,
  buffer,
  unreferenced_pid,
  sdt_actual,
  sdt_other,
  eit_actual,
  eit_other,
  eit_pf,
  rst,
  tdt,
  empty_buffer,
  data_delay,
  changed_content,
  version_back,
  missing_section,
  missing_segment,
  missing_table,
  failed_section,
  failed_descriptor,
  missing_pid,
};

/// What a measure needs beside the packets.
enum class Need {
  nothing,
  time_in_part,  ///< without a clock a part of it is measured
  time,          ///< without a clock it is not measured
  more,          ///< what neither a file nor a network gives: it is never measured
};

struct MeasureRow {
  Measure measure;
  char const* name;
  int priority;        ///< 1 to 3 by ETSI TR 101 290; 0 beyond it
  char const* number;  ///< of the row in the table of clause 5.2.1, 5.2.2 or 5.2.3; empty beyond TR 101 290
  Need need;
  char const* limit;  ///< what it is held to; of what is never measured, why
};

/// A row for each measure, in their order.
std::span<MeasureRow const> measure_list();
MeasureRow const& row_of(Measure measure);

inline constexpr char const* clause_of_priority[] = {"", "5.2.1", "5.2.2", "5.2.3"};

}  // namespace inspect
