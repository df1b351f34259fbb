// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// What stands after udp:// and rtp://: `[@]GROUP:PORT[?localaddr=ADDRESS]`.
struct NetworkAddress {
  std::string group;  ///< an address in numbers, IPv6 without its brackets; empty: any of this machine
  std::string port;   ///< a number
  std::string local_address;  ///< of the interface to listen on; empty: the system's choice

  /// Throws `NoInput`, which repeats the text.
  static NetworkAddress from(std::string_view text);
};

}  // namespace inspect
