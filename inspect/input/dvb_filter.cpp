// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/dvb_filter.h"

#include <linux/dvb/dmx.h>
#include <sivane/demux/packet.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include "input/source.h"
#include "text/hexadecimal.h"

namespace inspect {

namespace {

constexpr std::size_t packet_size = sivane::ts_packet_size;
constexpr std::uintptr_t kernel_buffer = 1 << 20;  // the usual one holds 40 packets
constexpr std::size_t packets_read_at_once = 256;

void require(bool is_done, std::string const& device, char const* what) {
  if (!is_done) throw NoInput(std::string(what) + ' ' + device + ": " + std::strerror(errno));
}

}  // namespace

DvbFilter::DvbFilter(DvbCalls& calls, std::string const& device, int pid)
    : calls_(calls),
      device_(device),
      file_(calls.open(device.c_str())),
      bytes_(packets_read_at_once * packet_size) {
  require(file_.get() >= 0, device_, "cannot open");
  // The request takes the number itself. Where it is refused the usual buffer serves.
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  calls_.ioctl(file_.get(), DMX_SET_BUFFER_SIZE, reinterpret_cast<void*>(kernel_buffer));
  dmx_pes_filter_params filter = {};
  filter.pid = static_cast<std::uint16_t>(pid);
  filter.input = DMX_IN_FRONTEND;
  filter.output = DMX_OUT_TSDEMUX_TAP;
  filter.pes_type = DMX_PES_OTHER;
  filter.flags = DMX_IMMEDIATE_START;
  std::string const what = "cannot read PID " + c_hexadecimal(pid, 2) + " of";
  require(calls_.ioctl(file_.get(), DMX_SET_PES_FILTER, &filter) == 0, device_, what.c_str());
}

bool DvbFilter::read(std::span<unsigned char> packet) {
  if (held_ - next_ < packet_size) fill();
  if (held_ - next_ < packet_size) return false;
  std::copy_n(bytes_.data() + next_, packet_size, packet.data());
  next_ += packet_size;
  return true;
}

void DvbFilter::fill() {
  std::copy(bytes_.data() + next_, bytes_.data() + held_, bytes_.data());
  held_ -= next_;
  next_ = 0;
  ssize_t const count = calls_.read(file_.get(), bytes_.data() + held_, bytes_.size() - held_);
  if (count >= 0) {
    held_ += static_cast<std::size_t>(count);
  } else if (errno == EOVERFLOW) {
    ++overflows_;
    held_ = 0;  // what follows begins with a packet
  } else if (errno != EAGAIN && errno != EINTR) {
    throw InputFault(device_ + " cannot be read on: " + std::strerror(errno));
  }
}

}  // namespace inspect
