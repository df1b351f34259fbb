// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/packet.h>
#include <sivane/foundation/export.h>

#include <cstddef>
#include <cstdint>

namespace sivane {

/// Finds the transport packets in a stream of bytes that comes in pieces of any size: packets of 188 bytes,
/// of 192 (four bytes in front of each) or 204 (sixteen behind), with bytes before, between and behind them
/// that are none.
///
/// Synchronisation is gained by five sync bytes at equal distances and lost by two wrong ones in a row (ETSI
/// TR 101 290, 5.2.1); a packet with one wrong sync byte is left out. Where it is lost, the search begins
/// behind the sync byte of the last packet, so that bytes lost or added cost no packet but the one that they
/// belong to.
///
/// Derive, override `on_packets`, and give what it gets to `DemuxPush::push_packets`. What is handed on
/// depends on the bytes alone and not on how they are cut into pieces; runs of packets may be longer or
/// shorter.
class SIVANE_API PacketFinder {
 public:
  PacketFinder() = default;
  PacketFinder(PacketFinder const&) = delete;
  PacketFinder& operator=(PacketFinder const&) = delete;

  /// Takes the next piece and hands on every packet that is whole. What a hook throws leaves through here;
  /// the rest of the piece, from `next_offset` on, is then for the host to push again.
  void push(unsigned char const* piece, std::size_t size);
  /// The stream ends here: hands on what has too few sync bytes for the count of five, as a short file has,
  /// and reports what is left. A stream that goes on behind is searched anew.
  void flush();

  /// Bytes from one packet to the next: 188, 192 or 204 once it was found, 0 before.
  int stride() const { return stride_; }
  /// Whether packets are being found.
  bool in_sync() const { return in_sync_; }
  /// Of the byte that is expected next, counted from the first one pushed.
  std::uint64_t next_offset() const { return held_offset_ + held_; }

  std::uint64_t packets = 0;           ///< handed on
  std::uint64_t skipped_bytes = 0;     ///< reported to `on_skipped`
  std::uint64_t sync_byte_errors = 0;  ///< wrong sync bytes while in sync
  std::uint64_t sync_losses = 0;       ///< times that sync was lost

 protected:
  ~PacketFinder() = default;

  /// Packets, each of which begins with 0x47, in the order of the stream. They lie in the piece that was
  /// pushed, or in a copy where one began in an earlier piece, and are borrowed during the call.
  virtual void on_packets(PacketRun const& run) = 0;
  /// Bytes that belong to no packet handed on; told before the packets behind them.
  virtual void on_skipped(std::uint64_t offset, std::uint64_t size);

 private:
  class SIVANE_LOCAL Piece;
  struct SIVANE_LOCAL Chain;
  // The most that is held: of five packets of 204 bytes all but the last, or two and a part of a third.
  static constexpr std::size_t capacity = 1024;

  unsigned char byte(std::uint64_t offset) const {
    return offset < piece_offset_ ? held_bytes_[offset - held_offset_] : piece_[offset - piece_offset_];
  }
  bool step();
  bool search();
  bool find_sync_byte();
  bool gain_sync(int stride);
  std::uint64_t first_likely_start() const;
  void miss_sync_byte();
  int packets_in_piece() const;
  void hand_on(unsigned char const* first, int count);
  void report_skipped(std::uint64_t up_to);
  void hold(std::uint64_t from, std::uint64_t to);
  Chain chain_at(std::uint64_t offset, int stride) const;
  Chain longest_chain() const;

  bool in_sync_ = false;
  bool missed_one_ = false;  // the sync byte before `at_` was wrong
  int stride_ = 0;
  std::uint64_t at_ = 0;            // of the next sync byte, in sync; else of the first byte that may be one
  std::uint64_t retry_from_ = 0;    // where the search begins if sync is lost
  std::uint64_t handed_up_to_ = 0;  // behind the last packet, and what was reported as skipped

  // The stream from held_offset_ to end_: first the bytes held, then the piece that is being pushed.
  std::uint64_t held_offset_ = 0;
  std::size_t held_ = 0;
  unsigned char const* piece_ = nullptr;
  std::uint64_t piece_offset_ = 0;
  std::uint64_t end_ = 0;
  unsigned char held_bytes_[capacity];
};

}  // namespace sivane
