// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The memory that a demultiplexer takes, and a host that runs out of it.
#include <gtest/gtest.h>
#include <sivane/demux/demux.h>
#include <sivane/demux/packet_finder.h>

#include <functional>
#include <new>

#include "count.h"
#include "packet_writer.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;

class HookedHost final : public DemuxPush {
 public:
  std::function<void()> hook = [] {};
  int sections = 0;
  void push(Bytes const& stream) { push_data(stream.data(), static_cast<int>(stream.size())); }

 protected:
  void on_psi_section(int, int, int, unsigned char const*) override { delivered(); }
  void on_psi_section(unsigned long, int, unsigned char*) override { delivered(); }

 private:
  void delivered() {
    ++sections;
    hook();
  }
};

struct Finder final : PacketFinder {
  explicit Finder(DemuxPush& demux) : host(demux) {}
  void on_packets(PacketRun const& run) override { host.push_packets(run); }
  DemuxPush& host;
};

Bytes const stream =
    make_packet({.pid = pid, .start = true, .payload = Bytes{0} + make_short_section(0x42, Bytes(9))});

TEST(MemoryOfADemux, IsWhatIsStated) {
  std::size_t const before = requested_bytes();
  HookedHost host;
  std::size_t const of_the_object = requested_bytes() - before + sizeof(Demux);
  EXPECT_GE(of_the_object, 64u * 1024);
  EXPECT_LE(of_the_object, 64u * 1024 + 256);
  host.add_psi_handler(pid, 0x42);
  EXPECT_LE(requested_bytes() - before, of_the_object + 8192 + 512);  // the PID and a handler
}

TEST(MemoryOfADemux, ThePacketPathTakesNone) {
  PacketWriter writer;
  writer.section(0x0000, make_section({}, Bytes(500)));
  writer.packet({.pid = 0x0100, .start = true, .adaptation = 7, .payload = Bytes(170)});
  writer.dense_sections(0x0000, {make_pat({{1, 0x100}}), make_section({}, Bytes(300)), make_pat({})});
  writer.null_packets(3);
  Bytes const& packets = writer.stream();
  for (Reassembly const mode : {Reassembly::first_start, Reassembly::every_section}) {
    HookedHost host;
    host.set_reassembly(mode);
    host.count(0x0100);
    host.add_psi_handler(0x0000, 0x00);
    host.add_psi_handler(0x0000, nullptr, nullptr, 0, 1);
    Finder finder(host);
    EXPECT_EQ(allocations_of([&] { host.push(packets); }), 0u);
    int const found = host.sections;
    EXPECT_GT(found, 2);
    EXPECT_EQ(allocations_of([&] {
                finder.push(packets.data(), packets.size() - 100);
                finder.push(packets.data() + packets.size() - 100, 100);
              }),
              0u);
    EXPECT_GT(host.sections, found + 2);
    EXPECT_EQ(host.counters(0x0100)->repeated, 1u);
  }
}

TEST(MemoryOfADemux, ComesBackWhenTheDeliveryEnds) {
  HookedHost host;
  host.hook = [&] {
    host.reset();
    host.add_psi_handler(pid, 0x46);
    host.remove_psi_handler(pid, 0x46);
    host.add_psi_handler(pid, 0x42);
    host.add_psi_handler(pid, 0x46);
    host.remove_psi_handler(pid, 0x46);
  };
  host.add_psi_handler(pid, 0x42);
  std::size_t const before = live_blocks();
  host.push(stream + stream + stream);
  EXPECT_EQ(host.sections, 3);
  EXPECT_EQ(live_blocks(), before);
}

}  // namespace
}  // namespace sivane::testing
