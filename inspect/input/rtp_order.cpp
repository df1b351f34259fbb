// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/rtp_order.h"

#include <cstdlib>
#include <optional>

namespace inspect {

namespace {

constexpr std::size_t header_size = 12;
constexpr int version = 2;
constexpr std::int64_t largest_jump = 3000;  // beyond it the sender has begun anew (RFC 3550, A.1)

struct RtpPacket {
  std::uint16_t number;
  std::uint32_t sender;
  std::span<unsigned char const> payload;
};

std::uint32_t big_endian(std::span<unsigned char const> bytes) {
  std::uint32_t value = 0;
  for (unsigned char const byte : bytes) value = value << 8 | byte;
  return value;
}

/// Nothing where the datagram is no RTP, or its lengths lead out of it.
std::optional<RtpPacket> read_packet(std::span<unsigned char const> datagram) {
  if (datagram.size() < header_size || datagram[0] >> 6 != version) return {};
  bool const has_padding = (datagram[0] & 0x20) != 0;
  bool const has_extension = (datagram[0] & 0x10) != 0;
  std::size_t const contributors = datagram[0] & 0x0F;
  std::size_t begin = header_size + 4 * contributors;
  if (has_extension) {
    if (begin + 4 > datagram.size()) return {};
    begin += 4 + 4 * big_endian(datagram.subspan(begin + 2, 2));
  }
  std::size_t const padding = has_padding ? datagram.back() : 0;
  if (begin + padding > datagram.size()) return {};
  return RtpPacket{static_cast<std::uint16_t>(big_endian(datagram.subspan(2, 2))),
                   big_endian(datagram.subspan(8, 4)),
                   datagram.subspan(begin, datagram.size() - padding - begin)};
}

/// The number nearest to `next` that ends in these 16 bits.
std::int64_t unwrapped(std::uint16_t number, std::int64_t next) {
  return next + static_cast<std::int16_t>(number - static_cast<std::uint16_t>(next));
}

}  // namespace

void RtpOrder::take(std::span<unsigned char const> datagram, std::vector<unsigned char>& bytes) {
  auto const packet = read_packet(datagram);
  if (!packet) {
    ++counts_.foreign;
    return;
  }
  std::int64_t number = unwrapped(packet->number, next_);
  bool const is_other = !has_sender_ || packet->sender != sender_ || std::abs(number - next_) > largest_jump;
  if (is_other) {
    restart(packet->sender, bytes);
    number = next_ = packet->number;
  }
  bool const is_new =
      number >= next_ && held_.try_emplace(number, packet->payload.begin(), packet->payload.end()).second;
  if (!is_new) ++counts_.late;
  if (is_new && number != held_.rbegin()->first) ++counts_.reordered;
  while (!held_.empty() && (held_.begin()->first == next_ || held_.size() > window)) give_next(bytes);
}

void RtpOrder::flush(std::vector<unsigned char>& bytes) {
  while (!held_.empty()) give_next(bytes);
}

void RtpOrder::restart(std::uint32_t sender, std::vector<unsigned char>& bytes) {
  flush(bytes);
  has_sender_ = true;
  sender_ = sender;
}

void RtpOrder::give_next(std::vector<unsigned char>& bytes) {
  auto const& [number, payload] = *held_.begin();
  counts_.lost += number - next_;
  next_ = number + 1;
  bytes.insert(bytes.end(), payload.begin(), payload.end());
  held_.erase(held_.begin());
}

}  // namespace inspect
