// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>

namespace inspect {

/// How many packets of a stream have which PID.
struct PacketCounts {
  std::map<int, unsigned long long> by_pid;  ///< of the PIDs that occurred
  unsigned long long total = 0;              ///< 0 where the input has no packets
};

}  // namespace inspect
