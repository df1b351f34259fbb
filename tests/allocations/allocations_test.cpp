// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <utility>

#include "count.h"
#include "packet_writer.h"

namespace sivane::testing {
namespace {

TEST(Allocations, AnEmptyDescriptorSetTakesNone) {
  EXPECT_EQ(allocations_of([] {
              DescriptorSet set;
              DescriptorSet copy(set);
              DescriptorSet moved(std::move(copy));
              set = moved;
              moved = std::move(set);
            }),
            0u);
}

TEST(Allocations, OfADescriptorSetAreForFilingAndCopyingNotForMoving) {
  unsigned char const descriptor[] = {0x52, 0x01, 0x11};
  DescriptorSet set;
  EXPECT_GT(allocations_of([&] { set.ParseDescriptor(descriptor); }), 0u);
  EXPECT_GT(allocations_of([&] { DescriptorSet const copy(set); }), 0u);
  EXPECT_EQ(allocations_of([&] {
              DescriptorSet moved(std::move(set));
              set = std::move(moved);
            }),
            0u);
  EXPECT_EQ(set.get_stream_identifier_descriptors().size(), 1u);
}

class Counter final : public DemuxPush {
 public:
  int sections = 0;

 protected:
  void on_psi_section(int, int, int, unsigned char const*) override { ++sections; }
  void on_psi_section(unsigned long, int, unsigned char*) override { ++sections; }
};

TEST(Allocations, ThePacketPathTakesNone) {
  PacketWriter writer;
  writer.section(0x0000, make_section({}, Bytes(500)));
  writer.packet({.pid = 0x0100, .start = true, .adaptation = 7, .payload = Bytes(170)});
  writer.dense_sections(0x0000, {make_pat({{1, 0x100}}), make_section({}, Bytes(300)), make_pat({})});
  writer.null_packets(3);
  Counter host;
  host.add_psi_handler(0x0000, 0x00);
  host.add_psi_handler(0x0000, nullptr, nullptr, 0, 1);
  int const size = static_cast<int>(writer.stream().size());
  EXPECT_EQ(allocations_of([&] { host.push_data(writer.stream().data(), size); }), 0u);
  EXPECT_GT(host.sections, 2);
}

}  // namespace
}  // namespace sivane::testing
