// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <vector>

namespace inspect {

/// Takes RTP datagrams (RFC 3550, 5.1) as they arrive and gives their payloads in the order of their sequence
/// numbers, transport packets by RFC 2250, 2. One that is missing holds up what follows until so many packets
/// came that it is given up for lost.
class RtpOrder {
 public:
  static constexpr std::size_t window = 32;  ///< packets held at most

  struct Counts {
    long long lost = 0;       ///< never came in time
    long long late = 0;       ///< came again, or after they were given up
    long long reordered = 0;  ///< came before one that was sent earlier
    long long foreign = 0;    ///< datagrams that are no RTP
  };

  /// Appends to `bytes` what may go on now.
  void take(std::span<unsigned char const> datagram, std::vector<unsigned char>& bytes);
  /// Gives up what is missing: appends all that is held.
  void flush(std::vector<unsigned char>& bytes);
  bool holds_any() const { return !held_.empty(); }
  Counts const& counts() const { return counts_; }

 private:
  void restart(std::uint32_t sender, std::vector<unsigned char>& bytes);
  void give_next(std::vector<unsigned char>& bytes);

  std::map<std::int64_t, std::vector<unsigned char>> held_;  // by number, which counts on past 65,535
  bool has_sender_ = false;
  std::uint32_t sender_ = 0;  // SSRC
  std::int64_t next_ = 0;     // number of the packet whose turn it is
  Counts counts_;
};

}  // namespace inspect
