// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/demux.h>

#include "input/packet_counts.h"

namespace inspect {

/// A line for each PID on which something was lost.
void report_losses(sivane::Demux const& demux);

/// What the demultiplexer has counted, of all PIDs.
PacketCounts counts_of(sivane::Demux const& demux);

}  // namespace inspect
