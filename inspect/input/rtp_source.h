// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <vector>

#include "input/rtp_order.h"
#include "input/udp_source.h"

namespace inspect {

/// Transport packets in RTP, without its headers and in order.
class RtpSource final : public Source {
 public:
  RtpSource(std::string const& name, NetworkAddress const& address, RunEnd& end);

  std::size_t read(std::span<unsigned char> buffer) override;
  std::string const& name() const override { return name_; }
  bool is_live() const override { return true; }
  void report_losses() const override;

 private:
  void receive_some(std::span<unsigned char> buffer);

  std::string name_;
  RunEnd& end_;
  UdpSource datagrams_;
  RtpOrder order_;
  std::vector<unsigned char> ready_;
};

}  // namespace inspect
