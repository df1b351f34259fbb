// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>

#include "demux_host.h"

namespace sivane::fuzzing {

/// Pushes buffers of whole packets, and some that are not.
class PushHost final : public DemuxHost<DemuxPush> {
 public:
  using DemuxHost::DemuxHost;

  void push(std::vector<unsigned char> const& buffer) {
    // A block of its own size lets the address sanitizer see the first byte that is read behind it.
    auto const block = std::make_unique<unsigned char[]>(buffer.size());
    std::copy(buffer.begin(), buffer.end(), block.get());
    int const size = static_cast<int>(buffer.size());
    packets_seen = 0;
    run([&] { check_result(push_data(block.get(), size), block.get(), size); });
  }

 private:
  void check_result(int result, unsigned char const* block, int size) const {
    int const read = packets_seen * ts_packet_size;
    if (size % ts_packet_size != 0) {
      check(result == -1 && read == 0, "a buffer of no whole number of packets is not read");
    } else if (result == 0) {
      check(read == size, "every packet is shown");
    } else {
      check(result == 2 && read < size && block[read] != ts_sync_byte, "the run ends where sync is lost");
    }
  }
};

/// One stream stands for the sources of all PIDs, so that many a packet is read for another PID than its own.
class PolledHost final : public DemuxHost<Demux2> {
 public:
  PolledHost(Input script, Input packets) : DemuxHost(script), packets_(packets) {}

  bool end_of_input() override { return packets_.empty() || ++passes_ > max_passes; }

 protected:
  using Demux2::read_buf;
  bool read_buf(int, unsigned char* buffer, int size, int& got) override {
    std::vector<unsigned char> packet;
    unsigned char const control = append_packet(packet, packets_);
    std::memcpy(buffer, packet.data(), packet.size());
    got = (control & odd_size) != 0 ? size - 1 : size;
    return (control & cut_behind) == 0;
  }
  bool read_buf(unsigned char*, int, int&) override { return false; }

 private:
  static constexpr int max_passes = 4096;  // without a handled PID nothing is read
  Input packets_;
  int passes_ = 0;
};

}  // namespace sivane::fuzzing
