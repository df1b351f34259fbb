// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/demux.h>
#include <sivane/tables/seen_sections.h>

#include <vector>

#include "check/observation.h"

namespace inspect {

/// Assembles every section of the PIDs that are watched, whatever its table id is. What it sees goes into a
/// list of observations.
class SectionWatch final : private sivane::DemuxPush {
 public:
  explicit SectionWatch(std::vector<Observation>& seen);

  void watch(int pid) { add_psi_handler(pid, nullptr, nullptr, 0, static_cast<unsigned long>(pid)); }
  /// A packet of a PID that is watched.
  void take(unsigned char const* packet, Place const& place);

 private:
  using DemuxPush::on_psi_section;
  void on_psi_section(unsigned long pid, int size, unsigned char* section) override;
  void describe(SectionSight& sight, int pid, unsigned char const* section, int size);

  std::vector<Observation>& seen_;
  sivane::SeenSections known_;
  Place place_;  // of the packet that is looked at
};

}  // namespace inspect
