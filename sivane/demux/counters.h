// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>

namespace sivane {

/// What was received on one PID since it is counted. Values of `pcr` are in units of 27 MHz, offsets as those
/// of `Demux::packet_offset`.
struct PidCounters {
  std::uint64_t packets = 0;   ///< all of them, those below included
  std::uint64_t gaps = 0;      ///< jumps of the continuity_counter that no discontinuity_indicator announces
  std::uint64_t missing = 0;   ///< packets that the gaps have swallowed, 1 to 15 each: the counter has 4 bits
  std::uint64_t repeated = 0;  ///< packets that are their predecessor once more (ISO/IEC 13818-1, 2.4.3.3)
  std::uint64_t erroneous = 0;  ///< with transport_error_indicator
  std::uint64_t scrambled = 0;  ///< payloads with a transport_scrambling_control other than 0

  // Of the mode `Reassembly::every_section`, and there of table ids that somebody had asked for.
  std::uint64_t sections = 0;      ///< that came whole
  std::uint64_t cut_sections = 0;  ///< that began and did not come whole
  std::uint64_t crc_failures = 0;  ///< that the host has reported

  std::uint64_t pcrs = 0;              ///< packets with a program_clock_reference (2.4.3.5)
  std::uint64_t first_pcr = 0;         ///< value of the first one, 42 bits: base * 300 + extension
  std::uint64_t first_pcr_offset = 0;  ///< of its packet
  std::uint64_t last_pcr = 0;          ///< value of the latest one
  std::uint64_t last_pcr_offset = 0;   ///< of its packet
};

/// A jump of the continuity_counter of a PID.
struct Gap {
  int pid;               ///< 13 bits
  int missing;           ///< packets that are missing at least, 1 to 15
  std::uint64_t offset;  ///< of the packet after the gap, as `Demux::packet_offset`
};

/// Is told of gaps. A host may derive from it beside its driver.
class GapListener {
 public:
  /// Called once for each gap, before the sections of the packet after it.
  virtual void on_gap(Gap const& gap) = 0;

 protected:
  ~GapListener() = default;
};

}  // namespace sivane
