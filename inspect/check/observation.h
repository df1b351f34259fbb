// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <vector>

#include "check/findings.h"

namespace inspect {

/// A section that has come whole.
struct SectionSight {
  int table_id = 0;
  bool is_long = false;         ///< by its section_syntax_indicator; what follows is 0 where it is not
  int extension = 0;            ///< table_id_extension
  int transport_stream = 0;     ///< of an EIT
  int original_network = 0;     ///< of an SDT or EIT
  int version = 0;              ///< version_number
  bool is_current = true;       ///< by its current_next_indicator
  int number = 0;               ///< section_number
  int last_number = 0;          ///< last_section_number
  int segment_last_number = 0;  ///< segment_last_section_number of an EIT
  int last_table = 0;           ///< last_table_id of an EIT
  std::uint64_t begin = 0;      ///< offset of the packet in which it began
  bool has_changed = false;     ///< its content, although its version has not
  std::vector<unsigned char> content = {};  ///< the section, where it is not what came in its place before
};

/// Something in a packet, seen before the packet's time is known.
struct Observation {
  enum class Kind {
    sync_loss,
    sync_byte,
    transport_error,
    continuity,
    scrambled,
    pcr,
    pts,
    wrong_crc,
    section
  };

  Kind kind;
  int pid;
  Place place;
  std::uint64_t value = 0;    ///< a PCR; how many packets are missing, 0 where one came too often
  bool is_announced = false;  ///< a PCR's jump, by the discontinuity_indicator
  SectionSight section = {};
};

/// The packets of a PID from one PCR of the stream's clock to the next.
struct PidSpan {
  int pid;
  std::uint64_t packets;
  Place first;
  std::int64_t last_ticks;
};

}  // namespace inspect
