// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Packets found in bytes, and recordings through all of the way from bytes to sections.
#include <gtest/gtest.h>
#include <sivane/demux/packet_finder.h>

#include <array>
#include <fstream>
#include <iterator>
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

Bytes sample(char const* name) {
  std::ifstream file(std::string(SIVANE_SAMPLES "/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// All of the way from bytes to sections, with the usual registrations.
struct Receiver final : DemuxPush {
  struct Section {
    std::uint64_t first_packet, last_packet;
    Bytes bytes;
  };
  std::vector<Section> sections;
  Finder finder;

  Receiver() {
    set_reassembly(Reassembly::every_section);
    for (auto const& [pid, first, last] : {std::array{0, 0x00, 0x00},
                                           {0x10, 0x40, 0x41},
                                           {0x11, 0x42, 0x4A},
                                           {0x12, 0x4E, 0x6F},
                                           {0x14, 0x70, 0x73}}) {
      for (int id = first; id <= last; ++id) add_psi_handler(pid, id);
    }
    finder.on_run = [this](PacketRun const& run) { push_packets(run); };
  }

 protected:
  void on_psi_section(int, int table_id, int, unsigned char const* section) override {
    int const size = ((section[1] & 0xF) << 8 | section[2]) + 3;
    sections.push_back({section_offset(), packet_offset(), {section, section + size}});
    if (table_id != 0x00 || slow_crc(sections.back().bytes) != 0) return;
    for (int at = 8; at < size - 4; at += 4) {
      if ((section[at] | section[at + 1]) != 0)
        add_psi_handler((section[at + 2] & 0x1F) << 8 | section[at + 3], 0x02);
    }
  }
};

Sections bytes_of(Receiver const& receiver) {
  Sections bytes;
  for (auto const& section : receiver.sections) bytes.push_back(section.bytes);
  return bytes;
}

TEST(Recordings, GiveTheSameSectionsInEveryFormAndAllOfThem) {
  for (char const* const name : {"satellite-fr.ts", "satellite-it.ts", "terrestrial-at.ts",
                                 "terrestrial-fr.ts", "terrestrial-tw.ts"}) {
    Bytes const packets_alone = sample(name);
    if (packets_alone.empty()) GTEST_SKIP() << "no samples";
    Receiver plain;
    plain.push_data(packets_alone.data(), static_cast<int>(packets_alone.size()));
    Sections const sections = bytes_of(plain);
    bool const is_large = packets_alone.size() > 1000000;
    if (is_large) {
      EXPECT_EQ(sections.size(), 484u);
      EXPECT_EQ(std::set<Bytes>(sections.begin(), sections.end()).size(), 237u);
    }
    std::minstd_rand random(1);
    for (int const stride : {188, 192, 204}) {
      Receiver receiver;
      receiver.finder.read(Bytes(77, 0x47) + Bytes(500, 0x00) + spread(packets_alone, stride),
                           [&] { return is_large ? static_cast<int>(random() % 9000 + 1) : 1; });
      EXPECT_EQ(bytes_of(receiver), sections) << name << stride;
    }
  }
}

TEST(Recordings, LoseToADamageTheSectionsThatItTouches) {
  Bytes const whole = sample("satellite-fr.ts");
  if (whole.empty()) GTEST_SKIP() << "no samples";
  Receiver plain;
  plain.finder.read(whole, [] { return 1 << 30; });
  std::minstd_rand random(1);
  for (int round = 0; round < 40; ++round) {
    int const at = static_cast<int>(random() % whole.size()), length = static_cast<int>(random() % 188);
    auto const first = static_cast<std::uint64_t>(at - at % 188);
    std::uint64_t const last = static_cast<std::uint64_t>(at + length);
    int const size = static_cast<int>(whole.size()), behind = std::min(size, at + length);
    Bytes const damaged =
        round % 2 == 0
            ? part(whole, 0, at) + part(whole, behind, size)
            : part(whole, 0, at) + Bytes(static_cast<std::size_t>(length), 0x22) + part(whole, at, size);
    Receiver receiver;
    receiver.finder.read(damaged, [] { return 4096; });
    Sections const found = bytes_of(receiver);
    auto next = found.begin();
    for (auto const& section : plain.sections) {
      bool const is_touched = section.first_packet <= last && section.last_packet >= first;
      auto const place = std::find(next, found.end(), section.bytes);
      if (place != found.end()) next = place + 1;
      EXPECT_TRUE(is_touched || place != found.end())
          << "damage at " << at << ", section of " << section.first_packet;
    }
  }
}

}  // namespace
}  // namespace sivane::testing
