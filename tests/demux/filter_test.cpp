// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include <algorithm>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
const Bytes section = hex("42 F0 05 12 34 C1 00 01");

Bytes stream_of(Bytes const& payload) {
  return make_packet({.pid = pid, .start = true, .payload = Bytes{0} + payload});
}

TEST(Filter, ComparesMaskedSectionBytesWithTheValue) {
  struct Case {
    char const *value, *mask;
    bool matches;
  };
  const std::vector<Case> cases = {
      {"", "", true},
      {"42", "FF", true},
      {"43", "FF", false},
      {"40", "F0", true},
      {"42", "F0", false},  // the value is not masked
      {"00", "00", true},
      {"01", "00", false},
      {"42 F0 05", "FF FF FF", true},
      {"42 F0 06", "FF FF FF", false},  // the length bytes count
      {"42 00 00 12 34", "FF 00 00 FF FF", true},
      {"42 F0 05 12 34 C1 00 01", "FF FF FF FF FF FF FF FF", true},
      {"42 F0 05 12 34 C1 00 02", "FF FF FF FF FF FF FF FF", false},
      {"42 F0 05 12 34 C1 00 01 FF", "FF FF FF FF FF FF FF FF FF", true},  // stuffing behind the section
      {"42 F0 05 12 34 C1 00 01 00", "FF FF FF FF FF FF FF FF FF", false},
  };
  for (Case const& c : cases) {
    const HeapBlock value(hex(c.value)), mask(hex(c.mask));
    PushHost host;
    host.add_psi_handler(pid, value.data(), mask.data(), value.size(), 0xFFFFFFFF);
    host.push(stream_of(section));
    EXPECT_EQ(host.filtered.size(), c.matches ? 1u : 0u) << c.value << " under " << c.mask;
    if (c.matches) {
      EXPECT_EQ(host.filtered.front(), (PushHost::Filtered{0xFFFFFFFF, section}));
    }
    EXPECT_TRUE(host.sections.empty());
  }
}

TEST(Filter, SizesOutsideTheBuffer) {
  const Bytes zeros(8193, 0);
  for (const int size : {-1, 8192, 8193}) {
    PushHost host;
    host.add_psi_handler(pid, zeros.data(), zeros.data(), size, 1);
    host.push(stream_of(section));
    EXPECT_EQ(host.filtered.size(), size > 8192 ? 0u : 1u) << size;
  }
}

TEST(Filter, MaskAndValueAreReadAtEachSection) {
  Bytes value{0x00}, mask{0xFF};
  PushHost host;
  host.add_psi_handler(pid, value.data(), mask.data(), 1, 1);
  host.push(stream_of(section));
  EXPECT_TRUE(host.filtered.empty());
  value[0] = 0x42;
  host.push(stream_of(section));
  EXPECT_EQ(host.filtered.size(), 1u);
  mask[0] = 0x00;
  host.push(stream_of(section));
  EXPECT_EQ(host.filtered.size(), 1u);
}

TEST(Filter, SeveralOnAPidHaveEachTheirIdAndCopy) {
  PushHost host;  // its filter hook writes into the section that it gets
  host.add_psi_handler(pid, 0x42);
  for (const unsigned long id : {5ul, 6ul, 6ul}) host.add_psi_handler(pid, nullptr, nullptr, 0, id);
  EXPECT_EQ(host.pid_handlers.at(pid)->filter_handlers.size(), 3u);
  const Bytes longer = patterned_section(0x42, 300);
  host.push(exact_packet(pid, true, Bytes{0} + part(longer, 0, 183)));
  host.push(exact_packet(pid, false, part(longer, 183, 300)));
  EXPECT_EQ(host.sections, Sections{longer});
  std::vector<unsigned long> ids;
  for (PushHost::Filtered const& one : host.filtered) {
    EXPECT_EQ(one.bytes, longer);
    ids.push_back(one.id);
  }
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(ids, (std::vector<unsigned long>{5, 6, 6}));
}

TEST(Filter, SeesTablesWithoutAHandlerAndTheirTails) {
  PushHost host;
  host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
  const Bytes a = patterned_section(0x4A, 200), b = patterned_section(0x4B, 30);
  host.push(exact_packet(pid, true, Bytes{0} + part(a, 0, 183)));
  host.push(exact_packet(pid, true, Bytes{17} + part(a, 183, 200) + b));
  EXPECT_EQ(host.filtered, (std::vector<PushHost::Filtered>{{1, a}, {1, b}}));
}

TEST(Filter, StuffingWaitsAndIsReplacedByTheNextStart) {
  PushHost host;
  host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
  host.push(stream_of({}));
  EXPECT_EQ((*host.pid_handlers.at(pid)->filter_handlers.begin())->section_size, 183);
  host.push(stream_of(section));
  EXPECT_EQ(host.filtered, (std::vector<PushHost::Filtered>{{1, section}}));
}

TEST(Filter, AMismatchEndsItsSectionToo) {
  const Bytes value{0x46}, mask{0xFF};
  PushHost host;
  host.add_psi_handler(pid, value.data(), mask.data(), 1, 1);
  host.push(stream_of(section));
  Demux::PSIFilterHandler const& filter = **host.pid_handlers.at(pid)->filter_handlers.begin();
  EXPECT_FALSE(filter.in_section);
  EXPECT_EQ(filter.section_size, 0);
}

}  // namespace
}  // namespace sivane::testing
