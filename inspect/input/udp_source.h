// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "input/file_descriptor.h"
#include "input/network_address.h"
#include "input/source.h"

namespace inspect {

/// Datagrams to an address of this machine or to a multicast group, which is joined.
class UdpSource final : public Source {
 public:
  /// `name` is for lines alone.
  UdpSource(std::string const& name, NetworkAddress const& address, RunEnd& end);

  std::size_t read(std::span<unsigned char> buffer) override;
  std::string const& name() const override { return name_; }
  bool is_live() const override { return true; }
  /// One datagram; 0 where none came in time, or at the end of the run.
  std::size_t receive(std::span<unsigned char> buffer, std::chrono::milliseconds longest);

 private:
  std::string name_;
  RunEnd& end_;
  FileDescriptor socket_;
};

}  // namespace inspect
