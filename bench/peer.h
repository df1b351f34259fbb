// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The same work by two libraries: from the packets of `tables_stream` or `multiplex_stream` to tables, all of
// their entries gone through and one number read of every descriptor.
#pragma once

#include <cstddef>
#include <cstdint>

#include "section_builder.h"

namespace sivane::bench {

/// What was seen. Where one side leaves out repetitions and the other does not, that has as many times as
/// much of everything; otherwise the two are the same if none has skipped work.
struct Decoded {
  std::size_t entries = 0;  ///< programs, elementary streams, transport streams, services, events
  std::size_t descriptors = 0;
  std::uint64_t sum = 0;  ///< of a number of each descriptor

  bool operator==(Decoded const&) const = default;
  Decoded times(unsigned int count) const { return {count * entries, count * descriptors, count * sum}; }
};

enum class Kinds { all, of_a_programme_guide };  ///< of a guide: short and extended event, content

/// By libdvbpsi, which leaves out what repeats a version of a table, and takes an EIT for complete once its
/// sections come again.
Decoded decode_with_dvbpsi(testing::Bytes const& stream, Kinds kinds);

}  // namespace sivane::bench
