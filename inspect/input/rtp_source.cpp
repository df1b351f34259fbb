// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/rtp_source.h"

#include <algorithm>

#include "console.h"

namespace inspect {

namespace {

constexpr std::chrono::milliseconds patience(50);  // with what is missing while nothing comes

}  // namespace

RtpSource::RtpSource(std::string const& name, NetworkAddress const& address, RunEnd& end)
    : name_(name), end_(end), datagrams_(name, address, end) {}

std::size_t RtpSource::read(std::span<unsigned char> buffer) {
  while (ready_.empty() && !end_.has_come()) receive_some(buffer);
  if (ready_.empty()) order_.flush(ready_);
  std::size_t const size = std::min(buffer.size(), ready_.size());
  std::copy_n(ready_.begin(), size, buffer.begin());
  ready_.erase(ready_.begin(), ready_.begin() + static_cast<std::ptrdiff_t>(size));
  return size;
}

void RtpSource::receive_some(std::span<unsigned char> buffer) {
  std::size_t const size = datagrams_.receive(
      buffer, order_.holds_any() ? patience : std::chrono::milliseconds(std::chrono::hours(1)));
  if (size > 0) {
    order_.take(buffer.first(size), ready_);
  } else if (!end_.has_come()) {
    order_.flush(ready_);
  }
}

void RtpSource::report_losses() const {
  auto const& [lost, late, reordered, foreign] = order_.counts();
  if (lost > 0 || late > 0 || foreign > 0) {
    conclude(name_ + ": " + counted(lost, "RTP packet") + " lost, " + grouped(late) + " repeated or late, " +
             grouped(reordered) + " out of order, " + counted(foreign, "datagram") + " not of RTP");
  }
}

}  // namespace inspect
