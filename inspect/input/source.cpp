// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/source.h"

#include <string_view>

#include "input/file_source.h"
#include "input/rtp_source.h"
#include "input/udp_source.h"

namespace inspect {

std::unique_ptr<Source> open_source(std::string const& name, bool follow, RunEnd& end) {
  constexpr std::string_view udp = "udp://", rtp = "rtp://";
  if (name.starts_with(udp)) {
    return std::make_unique<UdpSource>(name, NetworkAddress::from(name.substr(udp.size())), end);
  }
  if (name.starts_with(rtp)) {
    return std::make_unique<RtpSource>(name, NetworkAddress::from(name.substr(rtp.size())), end);
  }
  return std::make_unique<FileSource>(name, follow, end);
}

std::string shown_name(std::string const& name) { return name == "-" ? "standard input" : name; }

}  // namespace inspect
