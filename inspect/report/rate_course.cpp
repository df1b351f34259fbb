// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "report/rate_course.h"

namespace inspect {

void RateCourse::take(sivane::PacketRun const& run,
                      std::function<std::int64_t(std::uint64_t)> const& ticks_at) {
  auto const stride = static_cast<std::size_t>(run.stride);
  for (int i = 0; i < run.count; ++i) {
    unsigned char const* const packet = run.first + static_cast<std::size_t>(i) * stride;
    count((packet[1] & 0x1F) << 8 | packet[2]);
  }
  if (run.count > 0)
    parts_.back().end_ticks = ticks_at(run.offset + static_cast<std::size_t>(run.count) * stride);
}

void RateCourse::count(int pid) {
  bool const is_full = !parts_.empty() && parts_.back().total >= packets_of_part_;
  if (is_full && parts_.size() == most_parts) merge_pairs();
  if (parts_.empty() || parts_.back().total >= packets_of_part_) parts_.emplace_back();
  ++parts_.back().packets[pid];
  ++parts_.back().total;
  ++totals_[pid];
}

void RateCourse::merge_pairs() {
  for (std::size_t i = 0; i < parts_.size() / 2; ++i) {
    Part merged = parts_[2 * i + 1];
    for (auto const& [pid, packets] : parts_[2 * i].packets) merged.packets[pid] += packets;
    merged.total += parts_[2 * i].total;
    parts_[i] = std::move(merged);
  }
  parts_.resize(parts_.size() / 2);
  packets_of_part_ *= 2;
}

}  // namespace inspect
