// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// How the fuzzer's bytes become packets: a control byte, a count, and that many bytes of the packet behind
// its header. The rest of a packet is stuffing, so that a stream of long sections is still a small input.
#pragma once

#include <sivane/demux/demux.h>

#include <array>

#include "input.h"

namespace sivane::fuzzing {

inline constexpr std::array fuzzed_pids = {0x0000, 0x0010, 0x0100, 0x1FFF};

enum Control : unsigned char {
  pid_mask = 0x03,          ///< index into `fuzzed_pids`
  unit_start = 0x04,        ///< payload_unit_start_indicator
  adaptation_field = 0x08,  ///< the bytes begin with an adaptation field
  cut_behind = 0x10,        ///< the buffer that is pushed ends with this packet
  odd_size = 0x20,          ///< and a byte too late
  sync_mask = 0xC0,         ///< all set: the sync byte is wrong
  own_bits = 0x40,          ///< alone of these: a byte follows that stands at the end of the header
  erroneous = 0x80,         ///< alone of these: the same, and transport_error_indicator
};

/// Appends one packet to `stream` and gives its control byte.
inline unsigned char append_packet(std::vector<unsigned char>& stream, Input& input) {
  unsigned char const control = input.byte();
  int const pid = fuzzed_pids[control & pid_mask];
  bool const lost_sync = (control & sync_mask) == sync_mask;
  unsigned char const error = (control & sync_mask) == erroneous ? 0x80 : 0x00;
  bool const has_own_bits = !lost_sync && (control & sync_mask) != 0;
  std::size_t const end = stream.size() + static_cast<std::size_t>(ts_packet_size);
  stream.push_back(lost_sync ? 0x48 : ts_sync_byte);
  stream.push_back(static_cast<unsigned char>(error | (control & unit_start) << 4 | pid >> 8));
  stream.push_back(static_cast<unsigned char>(pid & 0xFF));
  stream.push_back(has_own_bits ? input.byte() : (control & adaptation_field) != 0 ? 0x30 : 0x10);
  auto const bytes = input.bytes(input.byte() % 185);
  stream.insert(stream.end(), bytes.begin(), bytes.end());
  stream.resize(end, 0xFF);
  return control;
}

}  // namespace sivane::fuzzing
