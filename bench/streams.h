// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The streams that are measured: the tables of an invented multiplex, alone and among packets that nobody
// wants. The same bytes every time.
#pragma once

#include <cstddef>
#include <vector>

#include "section_builder.h"

namespace sivane::bench {

inline constexpr int pat_pid = 0x00;
inline constexpr int nit_pid = 0x10;
inline constexpr int sdt_pid = 0x11;
inline constexpr int eit_pid = 0x12;
inline constexpr int first_pmt_pid = 0x101;
inline constexpr int services =
    12;  ///< program_number and service_id 1 to 12, each with a PMT on a PID of its own

struct Stream {
  testing::Bytes bytes;
  std::size_t sections = 0;
};

/// At least `size` bytes of tables alone, with descriptors of 18 tags. Each round has all tables in a new
/// version with texts and numbers of its own, and is sent `times` times before the next one. No section is so
/// short that two of them begin in one packet.
Stream tables_stream(std::size_t size, int times = 1);

/// At least `size` bytes, 3 of 100 packets carrying the same tables; the others go through 40 PIDs.
Stream multiplex_stream(std::size_t size, int times = 1);

}  // namespace sivane::bench
