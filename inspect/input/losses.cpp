// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/losses.h"

#include "console.h"
#include "text/hexadecimal.h"

namespace inspect {

namespace {

constexpr int pid_count = 0x2000;

void append(std::string& line, std::uint64_t count, char const* noun) {
  if (count > 0) line += (line.empty() ? "" : ", ") + counted(static_cast<long long>(count), noun);
}

/// Empty where nothing was lost. Scrambling is a loss where sections were asked for.
std::string losses_of(sivane::PidCounters const& counters, bool is_handled) {
  std::string line;
  append(line, counters.gaps, "gap");
  append(line, counters.missing, "missing packet");
  append(line, counters.erroneous, "packet with transport error");
  append(line, is_handled ? counters.scrambled : 0, "scrambled packet");
  append(line, counters.cut_sections, "cut section");
  append(line, counters.crc_failures, "wrong CRC");
  return line;
}

}  // namespace

void report_losses(sivane::Demux const& demux) {
  for (int pid = 0; pid < pid_count; ++pid) {
    sivane::PidCounters const* const counters = demux.counters(pid);
    if (counters == nullptr) continue;
    std::string const line = losses_of(*counters, demux.pid_handlers.contains(pid));
    if (!line.empty()) conclude("PID " + c_hexadecimal(pid, 2) + ": " + line);
  }
}

PacketCounts counts_of(sivane::Demux const& demux) {
  PacketCounts counts;
  for (int pid = 0; pid < pid_count; ++pid) {
    sivane::PidCounters const* const counters = demux.counters(pid);
    if (counters == nullptr || counters->packets == 0) continue;
    counts.by_pid[pid] = counters->packets;
    counts.total += counters->packets;
  }
  return counts;
}

}  // namespace inspect
