// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/stream_clock.h"

#include <cmath>
#include <cstdlib>

#include "check/findings.h"

namespace inspect {

namespace {

constexpr std::uint64_t pcr_range = (std::uint64_t{1} << 33) * 300;
constexpr std::int64_t longest_step = 100 * ticks_of_millisecond;
constexpr std::int64_t longest_first_step = 10 * ticks_of_second;  // a longer one is no beginning
constexpr std::int64_t patience = ticks_of_second;                 // for the next PCR of the clock
constexpr std::uint64_t patience_in_bytes = 4 << 20;               // for the second one

}  // namespace

std::int64_t pcr_difference(std::uint64_t from, std::uint64_t to) {
  std::uint64_t const forward = (to % pcr_range + pcr_range - from % pcr_range) % pcr_range;
  return forward > pcr_range / 2 ? -static_cast<std::int64_t>(pcr_range - forward)
                                 : static_cast<std::int64_t>(forward);
}

bool is_pcr_jump(std::int64_t difference, std::int64_t passed) {
  if (difference >= 0 && difference <= longest_step) return false;
  return passed <= longest_step || std::llabs(difference - passed) > longest_step;
}

bool StreamClock::take_pcr(int pid, std::uint64_t offset, std::uint64_t pcr, bool is_announced_jump) {
  if (is_by_arrival_) return false;
  if (pid_ < 0) {
    change_to(pid, offset, pcr);
    return false;
  }
  if (pid == pid_) {
    return is_running() ? follow(offset, pcr, is_announced_jump) : start(offset, pcr, is_announced_jump);
  }
  if (is_running() && predicted(offset) - last_pcr_ticks_ > patience) {
    step_to(offset, predicted(offset));
    change_to(pid, offset, pcr);
    return true;
  }
  if (!is_running() && offset - last_pcr_offset_ > patience_in_bytes) change_to(pid, offset, pcr);
  return false;
}

/// The second PCR gives a rate, and with it the time of what came before.
bool StreamClock::start(std::uint64_t offset, std::uint64_t pcr, bool is_announced_jump) {
  std::int64_t const difference = pcr_difference(last_pcr_, pcr);
  if (is_announced_jump || difference <= 0 || difference > longest_first_step) {
    change_to(pid_, offset, pcr);
    return false;
  }
  ticks_of_byte_ = static_cast<double>(difference) / static_cast<double>(offset - last_pcr_offset_);
  step_to(last_pcr_offset_,
          std::llround(ticks_of_byte_ * static_cast<double>(last_pcr_offset_ - last_.offset)));
  step_to(offset, last_.ticks + difference);
  change_to(pid_, offset, pcr);
  return true;
}

bool StreamClock::follow(std::uint64_t offset, std::uint64_t pcr, bool is_announced_jump) {
  std::int64_t const difference = pcr_difference(last_pcr_, pcr);
  std::int64_t const passed = predicted(offset) - last_pcr_ticks_;
  if (is_announced_jump || difference <= 0 || is_pcr_jump(difference, passed)) {
    step_to(offset, last_pcr_ticks_ + passed);
  } else {
    ticks_of_byte_ = static_cast<double>(difference) / static_cast<double>(offset - last_pcr_offset_);
    step_to(offset, last_pcr_ticks_ + difference);
  }
  change_to(pid_, offset, pcr);
  return true;
}

void StreamClock::change_to(int pid, std::uint64_t offset, std::uint64_t pcr) {
  pid_ = pid;
  last_pcr_ = pcr;
  last_pcr_offset_ = offset;
  last_pcr_ticks_ = last_.ticks;
}

void StreamClock::step_to(std::uint64_t offset, std::int64_t ticks) {
  before_ = last_;
  last_ = {offset, ticks > last_.ticks ? ticks : last_.ticks};
}

bool StreamClock::run_on_to(std::uint64_t offset) {
  if (!is_running()) return false;
  if (offset > last_.offset) step_to(offset, predicted(offset));
  return true;
}

void StreamClock::take_arrival(std::uint64_t offset, std::int64_t nanoseconds) {
  is_by_arrival_ = true;
  if (first_arrival_ < 0) first_arrival_ = nanoseconds;
  std::int64_t const ticks = (nanoseconds - first_arrival_) / 1000 * (ticks_of_second / 1'000'000);
  if (offset > last_.offset && ticks > last_.ticks) {
    ticks_of_byte_ = static_cast<double>(ticks - last_.ticks) / static_cast<double>(offset - last_.offset);
    step_to(offset, ticks);
  }
}

std::int64_t StreamClock::predicted(std::uint64_t offset) const {
  return last_.ticks + std::llround(static_cast<double>(offset - last_.offset) * ticks_of_byte_);
}

std::int64_t StreamClock::ticks_at(std::uint64_t offset) const {
  if (!is_running()) return -1;
  if (offset >= last_.offset) return predicted(offset);
  double const part = static_cast<double>(static_cast<std::int64_t>(offset - before_.offset)) /
                      static_cast<double>(last_.offset - before_.offset);
  std::int64_t const ticks =
      before_.ticks + std::llround(static_cast<double>(last_.ticks - before_.ticks) * part);
  return ticks > 0 ? ticks : 0;
}

}  // namespace inspect
