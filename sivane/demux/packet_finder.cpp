// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/packet_finder.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace sivane {

namespace {

constexpr int strides[] = {188, 192, 204};
constexpr int sync_bytes_to_gain = 5;
constexpr unsigned int stamped_stride = 192;
constexpr unsigned int stamp_size = 4;  // bytes in front of a sync byte
constexpr unsigned int reach_of_headers = (sync_bytes_to_gain - 1) * stamped_stride + 4;
constexpr int largest_run =
    32;  // packets that are looked at before they are handed on: they stay in the cache

unsigned int bytes_in_front(int stride) { return stride == stamped_stride ? stamp_size : 0; }
/// Bytes of a packet from its sync byte on.
unsigned int bytes_from_sync(int stride) { return stride == 204 ? 204 : ts_packet_size; }

}  // namespace

/// The piece that is being pushed. What has to be remembered of it is held when it goes.
class PacketFinder::Piece {
 public:
  Piece(PacketFinder& finder, unsigned char const* bytes, std::size_t size) : finder_(finder) {
    finder.piece_ = bytes;
    finder.piece_offset_ = finder.next_offset();
    finder.end_ = finder.piece_offset_ + size;
  }
  Piece(Piece const&) = delete;
  Piece& operator=(Piece const&) = delete;
  ~Piece() {
    if (is_through_) {
      finder_.hold(finder_.in_sync_ ? finder_.retry_from_ : finder_.at_, finder_.end_);
    } else {
      std::uint64_t const next = std::min(finder_.at_, finder_.end_);
      finder_.hold(next, next);
    }
  }
  void is_through() { is_through_ = true; }

 private:
  PacketFinder& finder_;
  bool is_through_ = false;
};

/// Sync bytes at equal distances, and how many whole packets they begin.
struct PacketFinder::Chain {
  std::uint64_t offset = 0;
  int stride = 0;
  int sync_bytes = 0;
  int packets = 0;
  bool is_cut_short = false;  // by the end of the bytes, not by a wrong one
};

void PacketFinder::on_skipped(std::uint64_t, std::uint64_t) {}

void PacketFinder::push(unsigned char const* piece, std::size_t size) {
  Piece current(*this, piece, size);
  while (step()) continue;
  current.is_through();
}

/// False if more bytes are needed.
bool PacketFinder::step() {
  if (!in_sync_) return search();
  if (at_ >= end_) return false;
  if (byte(at_) != ts_sync_byte) {
    miss_sync_byte();
    return true;
  }
  if (at_ + ts_packet_size > end_) return false;
  if (at_ >= piece_offset_) {
    hand_on(piece_ + (at_ - piece_offset_), packets_in_piece());
    return true;
  }
  std::array<unsigned char, ts_packet_size> packet;
  for (std::size_t i = 0; i < packet.size(); ++i) packet[i] = byte(at_ + i);
  hand_on(packet.data(), 1);
  return true;
}

bool PacketFinder::search() {
  while (find_sync_byte()) {
    bool is_undecided = false;
    for (int const stride : strides) {
      Chain const chain = chain_at(at_, stride);
      if (chain.sync_bytes >= sync_bytes_to_gain) return gain_sync(stride);
      is_undecided = is_undecided || chain.is_cut_short;
    }
    if (is_undecided) return false;
    ++at_;
  }
  return false;
}

bool PacketFinder::find_sync_byte() {
  while (at_ < end_) {
    bool const is_held = at_ < piece_offset_;
    unsigned char const* const from =
        is_held ? held_bytes_ + (at_ - held_offset_) : piece_ + (at_ - piece_offset_);
    std::size_t const count = (is_held ? piece_offset_ : end_) - at_;
    void const* const found = std::memchr(from, ts_sync_byte, count);
    if (found != nullptr) {
      at_ += static_cast<std::uint64_t>(static_cast<unsigned char const*>(found) - from);
      return true;
    }
    at_ += count;
  }
  return false;
}

/// False if more bytes are needed to tell sync bytes from time stamps.
bool PacketFinder::gain_sync(int stride) {
  if (stride == stamped_stride) {
    if (at_ + stamp_size + reach_of_headers > end_) return false;
    at_ = first_likely_start();
  }
  in_sync_ = true;
  missed_one_ = false;
  stride_ = stride;
  retry_from_ = at_;
  return true;
}

/// The first two bytes of a time stamp stay the same for many packets and may look like a sync byte. Where
/// more than one of the next places may be it, the one is taken that has packet headers behind it.
std::uint64_t PacketFinder::first_likely_start() const {
  for (std::uint64_t offset = at_; offset <= at_ + stamp_size; ++offset) {
    if (chain_at(offset, stamped_stride).sync_bytes < sync_bytes_to_gain) continue;
    bool is_likely = true;
    for (std::uint64_t sync = offset; sync < offset + reach_of_headers; sync += stamped_stride) {
      bool const has_content = (byte(sync + 3) & 0x30) != 0;  // adaptation_field_control 0 is reserved
      is_likely = is_likely && has_content && (byte(sync + 1) & 0x80) == 0;
    }
    if (is_likely) return offset;
  }
  return at_;
}

void PacketFinder::miss_sync_byte() {
  ++sync_byte_errors;
  if (!missed_one_) {
    missed_one_ = true;
    at_ += static_cast<unsigned int>(stride_);
    return;
  }
  ++sync_losses;
  in_sync_ = false;
  at_ = std::max(retry_from_, held_offset_);
}

/// How many packets lie in the piece from `at_` on, which is the first one.
int PacketFinder::packets_in_piece() const {
  unsigned char const* packet = piece_ + (at_ - piece_offset_);
  std::uint64_t left = end_ - at_;
  auto const stride = static_cast<std::size_t>(stride_);
  int count = 0;
  while (count < largest_run && left >= ts_packet_size && *packet == ts_sync_byte) {
    if (left > stride * (largest_run + 1)) __builtin_prefetch(packet + stride * largest_run);
    ++count;
    if (left < stride) break;
    packet += stride;
    left -= stride;
  }
  return count;
}

/// Packets from `at_` on.
void PacketFinder::hand_on(unsigned char const* first, int count) {
  report_skipped(at_ - std::min<std::uint64_t>(at_, bytes_in_front(stride_)));
  PacketRun const run{first, count, stride_, at_};
  packets += static_cast<unsigned int>(count);
  at_ += static_cast<std::uint64_t>(count) * static_cast<unsigned int>(stride_);
  missed_one_ = false;
  std::uint64_t const last = at_ - static_cast<unsigned int>(stride_);
  retry_from_ = last + 1;
  handed_up_to_ = last + bytes_from_sync(stride_);
  on_packets(run);
}

void PacketFinder::report_skipped(std::uint64_t up_to) {
  if (up_to <= handed_up_to_) return;
  std::uint64_t const from = std::exchange(handed_up_to_, up_to);
  skipped_bytes += up_to - from;
  on_skipped(from, up_to - from);
}

/// Keeps these bytes alone.
void PacketFinder::hold(std::uint64_t from, std::uint64_t to) {
  from = std::clamp(from, held_offset_, to);
  std::size_t kept = 0;
  if (from < piece_offset_) {
    kept = static_cast<std::size_t>(std::min(to, piece_offset_) - from);
    if (from > held_offset_) std::memmove(held_bytes_, held_bytes_ + (from - held_offset_), kept);
  }
  if (to > piece_offset_) {
    std::uint64_t const first = std::max(from, piece_offset_);
    std::copy_n(piece_ + (first - piece_offset_), to - first, held_bytes_ + kept);
  }
  held_offset_ = from;
  held_ = static_cast<std::size_t>(to - from);
  piece_offset_ = end_ = to;
}

PacketFinder::Chain PacketFinder::chain_at(std::uint64_t offset, int stride) const {
  Chain chain{offset, stride};
  for (; chain.sync_bytes < sync_bytes_to_gain; offset += static_cast<unsigned int>(stride)) {
    chain.is_cut_short = offset >= end_;
    if (chain.is_cut_short || byte(offset) != ts_sync_byte) break;
    ++chain.sync_bytes;
    if (offset + ts_packet_size <= end_) ++chain.packets;
  }
  return chain;
}

/// Behind `at_`, in what is too short for five: two sync bytes or more, or one whose packet ends where the
/// bytes end.
PacketFinder::Chain PacketFinder::longest_chain() const {
  Chain best;
  for (std::uint64_t offset = at_; offset + ts_packet_size <= end_; ++offset) {
    if (byte(offset) != ts_sync_byte) continue;
    for (int const stride : {stride_, 188, 192, 204}) {
      if (stride == 0) continue;
      Chain const chain = chain_at(offset, stride);
      bool const ends_the_bytes = end_ - offset == ts_packet_size || end_ - offset == bytes_from_sync(stride);
      if (chain.sync_bytes == 1 && !ends_the_bytes) continue;
      if (chain.sync_bytes > best.sync_bytes) best = chain;
    }
  }
  return best;
}

void PacketFinder::flush() {
  Piece const nothing(*this, held_bytes_, 0);
  if (in_sync_ && missed_one_) at_ = std::max(retry_from_, held_offset_);
  if (!in_sync_ || missed_one_) {
    for (Chain chain = longest_chain(); chain.packets > 0; chain = longest_chain()) {
      at_ = chain.offset;
      stride_ = chain.stride;
      hand_on(held_bytes_ + (at_ - held_offset_), chain.packets);
      at_ = handed_up_to_;
    }
  }
  in_sync_ = false;
  at_ = end_;
  report_skipped(end_);
}

}  // namespace sivane
