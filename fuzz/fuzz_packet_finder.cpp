// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A stream of packets with damages, made from a few bytes: the first chooses the stride, each of the others
// appends packets or junk, takes bytes away, or breaks a sync byte. It is found whole, and the same in
// pieces.
#include <sivane/demux/packet_finder.h>

#include <cstdint>
#include <map>
#include <memory>

#include "input.h"

namespace {

using namespace sivane::fuzzing;
using Bytes = std::vector<unsigned char>;

struct Finder final : sivane::PacketFinder {
  std::map<std::uint64_t, unsigned int> found;  // sums of the packets by offset
  std::uint64_t last = 0, skipped_up_to = 0;

  void push_block(Bytes const& bytes, std::size_t from, std::size_t size) {
    auto const block = std::make_unique<unsigned char[]>(size);
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(from), size, block.get());
    push(block.get(), size);
  }

 private:
  void on_packets(sivane::PacketRun const& run) override {
    check(found.empty() || run.offset > last, "packets come in the order of the stream");
    check(run.offset >= skipped_up_to, "what was skipped is no packet");
    for (int i = 0; i < run.count; ++i) {
      unsigned char const* const packet = run.first + i * run.stride;
      check(packet[0] == sivane::ts_sync_byte, "a packet begins with its sync byte");
      last = run.offset + static_cast<unsigned int>(i * run.stride);
      for (int at = 0; at < sivane::ts_packet_size; ++at) found[last] = found[last] * 31 + packet[at];
    }
  }
  void on_skipped(std::uint64_t offset, std::uint64_t size) override {
    check(offset >= skipped_up_to && size > 0, "a byte is skipped once");
    skipped_up_to = offset + size;
  }
};

Bytes damaged_stream(Input& input, std::size_t stride) {
  Bytes bytes;
  for (unsigned char number = 0; !input.empty(); ++number) {
    unsigned int const action = input.byte();
    std::size_t const count = action >> 3;
    if ((action & 7) == 0) bytes.resize(bytes.size() + count * 7, number);
    if ((action & 7) == 1) bytes.resize(bytes.size() - std::min(bytes.size(), count));
    if ((action & 7) == 2 && bytes.size() >= stride)
      bytes[bytes.size() - stride] ^= static_cast<unsigned char>(count);
    for (std::size_t i = 0; (action & 7) > 2 && i < 1 + count / 4; ++i) {
      bytes.push_back(sivane::ts_sync_byte);
      bytes.resize(bytes.size() + stride - 1, (action & 7) == 7 ? sivane::ts_sync_byte : number);
    }
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  constexpr std::size_t strides[] = {188, 192, 204, 190};
  Input input(data, size);
  unsigned int const choice = input.byte();
  Bytes const bytes = damaged_stream(input, strides[choice % 4]);
  Finder whole, pieces;
  whole.push_block(bytes, 0, bytes.size());
  whole.flush();
  std::size_t const step = 1 + choice / 4 * 7;
  for (std::size_t at = 0; at < bytes.size(); at += step)
    pieces.push_block(bytes, at, std::min(step, bytes.size() - at));
  pieces.flush();
  check(whole.found == pieces.found, "the size of the pieces does not matter");
  check(whole.skipped_bytes == pieces.skipped_bytes, "and the same is skipped");
  check(whole.packets == whole.found.size() && whole.next_offset() == bytes.size(), "all is counted");
  return 0;
}
