// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Packets found in bytes.
#include <gtest/gtest.h>
#include <sivane/demux/packet_finder.h>

#include <set>

#include "random_stream.h"

namespace sivane::testing {
namespace {

struct Finder : PacketFinder {
  std::map<std::uint64_t, Bytes> found;  // by offset
  std::string skipped;
  std::function<void(PacketRun const&)> on_run = [](PacketRun const&) {};

  /// Pushes the bytes in pieces, each in a block of its own, and ends the stream.
  Finder& read(Bytes const& bytes, std::function<int()> const& next_size) {
    for (int at = 0, size = static_cast<int>(bytes.size()); at < size;) {
      int const end = std::min(size, at + next_size());
      HeapBlock const piece(part(bytes, at, end));
      push(piece.data(), static_cast<std::size_t>(piece.size()));
      at = end;
    }
    flush();
    return *this;
  }

 protected:
  void on_packets(PacketRun const& run) override {
    for (int i = 0; i < run.count; ++i) {
      unsigned char const* const packet = run.first + i * run.stride;
      found.emplace(run.offset + static_cast<unsigned int>(i * run.stride), Bytes(packet, packet + 188));
    }
    on_run(run);
  }
  void on_skipped(std::uint64_t offset, std::uint64_t size) override {
    skipped += std::to_string(size) + '@' + std::to_string(offset) + ';';
  }
};

/// Feeds the bytes in pieces of many sizes, which must not matter.
template <class Check>
void find_in(Bytes const& bytes, Check check) {
  std::minstd_rand random(1);
  std::function<int()> const sizes[] = {[] { return 1 << 30; }, [] { return 1; }, [] { return 188; },
                                        [&] { return static_cast<int>(random() % 700 + 1); }};
  for (auto const& next_size : sizes) {
    Finder finder;
    check(finder.read(bytes, next_size));
    EXPECT_EQ(finder.next_offset(), bytes.size());
  }
}

/// The packets as they stand at a stride, with what is in front of and behind each: a time stamp whose first
/// bytes stay the same for long and look like sync bytes, or check bytes.
Bytes spread(Bytes const& packets, int stride) {
  Bytes bytes;
  for (int at = 0; at < static_cast<int>(packets.size()); at += 188) {
    auto const time = static_cast<unsigned int>(at) * 2000;
    if (stride == 192)
      bytes = std::move(bytes) +
              Bytes{0x47, 0x47, static_cast<unsigned char>(time >> 8), static_cast<unsigned char>(time)};
    bytes = std::move(bytes) + part(packets, at, at + 188);
    if (stride == 204) bytes = std::move(bytes) + Bytes(16, 0x11);
  }
  return bytes;
}

Bytes const stream = RandomStream(0x100, 1).take(60);
int const packets = static_cast<int>(stream.size()) / 188;
Bytes packet(int number) { return part(stream, number * 188, number * 188 + 188); }

TEST(PacketFinder, FindsPacketsOfEverySizeBehindJunkAndUpToACutOne) {
  for (int const stride : {188, 192, 204}) {
    for (int const junk : {0, 1, 100, 1000}) {
      Bytes const spread_out = spread(stream, stride);
      int const cut = static_cast<int>(spread_out.size()) - 30;
      Bytes front(static_cast<std::size_t>(junk), 0x22);
      if (junk > 77) std::fill_n(front.begin(), 77, 0x47);
      find_in(front + part(spread_out, 0, cut), [&](Finder const& finder) {
        EXPECT_EQ(finder.stride(), stride);
        EXPECT_EQ(finder.found.size(), static_cast<std::size_t>(packets - 1));
        int number = 0;
        for (auto const& [offset, bytes] : finder.found) {
          EXPECT_EQ(offset, static_cast<unsigned int>(junk + number * stride + (stride == 192 ? 4 : 0)));
          EXPECT_EQ(bytes, packet(number++));
        }
        std::string const in_front = junk > 0 ? std::to_string(junk) + "@0;" : "";
        EXPECT_EQ(finder.skipped.substr(0, in_front.size()), in_front);
        EXPECT_EQ(finder.skipped_bytes, static_cast<unsigned int>(junk + cut % stride));
      });
    }
  }
}

TEST(PacketFinder, ADamageCostsThePacketsThatItTouches) {
  Bytes const head = part(stream, 0, 20 * 188), tail = part(stream, 22 * 188, packets * 188);
  Bytes const a = packet(20), b = packet(21);
  Bytes wrong_a = a, wrong_b = b;
  wrong_a[0] = wrong_b[0] = 0x46;
  struct Case {
    char const* name;
    Bytes middle;
    std::set<int> lost;  // packets that are not found as they were
    std::string skipped;
    std::uint64_t sync_losses, sync_byte_errors;
  };
  for (Case const& c :
       {Case{"a wrong sync byte", wrong_a + b, {20}, "188@3760;", 0, 1},
        {"two of them", wrong_a + wrong_b, {20, 21}, "376@3760;", 1, 2},
        {"a byte too few", part(a, 0, 100) + part(a, 101, 188) + b, {20}, "", 1, 2},
        {"half a packet too few", part(a, 0, 94) + b, {20}, "", 1, 2},
        {"a byte too many", part(a, 0, 100) + Bytes{9} + part(a, 100, 188) + b, {20}, "1@3948;", 1, 2},
        {"a packet too few", b, {20}, "", 0, 0},
        {"junk between", a + Bytes(500, 0x22) + b, {}, "500@3948;", 1, 2}}) {
    find_in(head + c.middle + tail, [&](Finder const& finder) {
      std::set<Bytes> found;
      for (auto const& [offset, bytes] : finder.found) found.insert(bytes);
      for (int number = 0; number < packets; ++number) {
        EXPECT_EQ(found.count(packet(number)), c.lost.count(number) == 0 ? 1u : 0u) << c.name << number;
      }
      EXPECT_EQ(finder.skipped, c.skipped) << c.name;
      EXPECT_EQ(finder.sync_losses, c.sync_losses) << c.name;
      EXPECT_EQ(finder.sync_byte_errors, c.sync_byte_errors) << c.name;
    });
  }
}

TEST(PacketFinder, ShortStreamsAreFoundAtTheirEnd) {
  for (int const stride : {188, 192, 204}) {
    for (int count = 1; count <= 4; ++count) {
      find_in(spread(part(stream, 0, count * 188), stride),
              [&](Finder const& finder) { EXPECT_EQ(finder.packets, static_cast<unsigned int>(count)); });
    }
  }
  // Behind a damage too few packets are left for a count of five.
  find_in(part(stream, 0, 40 * 188 + 100) + part(stream, 40 * 188 + 101, 43 * 188), [](Finder const& finder) {
    EXPECT_EQ(finder.found.size(), 43u);
    EXPECT_EQ(finder.found.rbegin()->second, packet(42));
  });
  for (Bytes const& none : {Bytes(), Bytes(187, 0x47), Bytes(2000, 0x22), hex("47") + Bytes(400, 0x22),
                            part(stream, 0, 4 * 188) + Bytes(2000, 0x22)}) {
    find_in(none, [&](Finder const& finder) {
      EXPECT_TRUE(finder.found.empty());
      EXPECT_EQ(finder.skipped_bytes, none.size());
    });
  }
}

TEST(PacketFinder, CopiesNothingThatLiesWholeInItsPiece) {
  Finder finder;
  std::size_t runs = 0;
  finder.on_run = [&](PacketRun const& run) {
    EXPECT_EQ(run.first, stream.data() + run.offset);
    ++runs;
  };
  finder.push(stream.data(), stream.size());
  EXPECT_EQ(finder.packets, static_cast<unsigned int>(packets));  // at once
  EXPECT_LE(runs, 3u);
}

TEST(PacketFinder, GoesOnWhereAHookHasThrown) {
  Finder finder;
  finder.on_run = [&](PacketRun const& run) {
    if (run.offset % 3 == 0) throw run.offset;
  };
  int throws = 0;
  while (finder.next_offset() < stream.size()) {
    auto const at = static_cast<std::ptrdiff_t>(finder.next_offset());
    try {
      finder.push(stream.data() + at,
                  std::min<std::size_t>(1000, stream.size() - static_cast<std::size_t>(at)));
    } catch (std::uint64_t) {
      ++throws;
    }
  }
  EXPECT_GT(throws, 3);
  EXPECT_EQ(finder.found.size(), static_cast<std::size_t>(packets));
  EXPECT_EQ(finder.skipped, "");
}

}  // namespace
}  // namespace sivane::testing
