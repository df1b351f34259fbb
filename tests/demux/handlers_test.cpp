// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What is registered, and what a filter lets through.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
Bytes const section = hex("42 F0 05 12 34 C1 00 01");
Bytes const packet = start_packet(pid, section);

std::size_t delivered(PushHost& host) {
  host.forget();
  EXPECT_EQ(host.push(packet), 0);
  return host.sections.size() + host.filtered.size();
}

TEST(Registration, AskingTwiceIsAskingOnce) {
  PushHost host;
  EXPECT_EQ(delivered(host), 0u);
  host.add_psi_handler(pid, 0x42);
  Demux::PSIHandler* const handler = &host.of_table(pid, 0x42);
  host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(&host.of_table(pid, 0x42), handler);
  EXPECT_EQ(delivered(host), 1u);
  host.remove_psi_handler(pid, 0x42);
  EXPECT_EQ(delivered(host), 0u);
}

TEST(Registration, RemovingTheLastTableTakesTheFilters) {
  PushHost host;
  for (int const id : {0x42, 0x46}) host.add_psi_handler(pid, id);
  host.add_filter(pid, 1);
  host.remove_psi_handler(pid, 0x46);
  host.remove_psi_handler(pid, 0x99);      // no such table, and one is left
  host.remove_psi_handler(pid + 1, 0x42);  // no such PID
  EXPECT_EQ(delivered(host), 2u);
  host.remove_psi_handler(pid, 0x42);
  EXPECT_EQ(delivered(host), 0u);
  host.add_filter(pid, 1);
  EXPECT_EQ(delivered(host), 1u);
  host.remove_psi_handler(pid, 0x99);  // of filters alone any table is the last
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_EQ(delivered(host), 0u);
}

TEST(Registration, RemovingTheCurrentHandlerAloneClearsIt) {
  PushHost host;
  for (int const id : {0x42, 0x46, 0x47}) host.add_psi_handler(pid, id);
  host.push(packet);
  host.remove_psi_handler(pid, 0x46);
  EXPECT_EQ(host.of_pid(pid).current, &host.of_table(pid, 0x42));
  host.remove_psi_handler(pid, 0x42);
  EXPECT_EQ(host.of_pid(pid).current, nullptr);
}

TEST(Registration, ResetDropsHandlersAndLeavesTheRest) {
  PushHost host;
  EXPECT_FALSE(host.stopped);
  host.add_psi_handler(pid, 0x42);
  host.add_filter(pid + 1, 1);
  host.stop(7);
  host.reset();
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_TRUE(host.stopped);
  EXPECT_EQ(host.exit_code, 7);
  EXPECT_EQ(delivered(host), 0u);
  EXPECT_EQ(host.calls, "ts 256 @4;");
  host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(delivered(host), 1u);
}

TEST(Registration, RangesAreNotTested) {
  PushHost host;
  for (int const number : {-1, 0, 0x1FFF, 0x2000, 0x12345678}) host.add_psi_handler(number, number);
  EXPECT_EQ(host.pid_handlers.size(), 5u);
  EXPECT_EQ(delivered(host), 0u);
  for (int const number : {-1, 0, 0x1FFF, 0x2000, 0x12345678}) host.remove_psi_handler(number, number);
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_EQ(host.push(start_packet(0, section) + start_packet(0x1FFF, section)), 0);
}

TEST(Registration, AnEntryThatTheHostTookAwayIsNotFollowed) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  delete std::exchange(host.pid_handlers.at(pid), nullptr);
  host.pid_handlers.erase(pid);
  EXPECT_EQ(delivered(host), 0u);
  host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(delivered(host), 1u);
}

TEST(Registration, DumpListsPidsAndTablesInOrder) {
  PushHost host;
  host.add_psi_handler(0x1FFF, 0x4E);
  host.add_psi_handler(0x10, 0x42);
  host.add_psi_handler(0x10, 0x0A);
  host.add_filter(0x11, 1);
  std::ostringstream os;
  host.of_table(0x10, 0x42).dump_state(os);
  host.dump_state(os);
  EXPECT_EQ(os.str(), "table_id: 66\npid: 10\ntable_id: a\ntable_id: 42\npid: 11\npid: 1fff\ntable_id: 4e\n");
}

TEST(Filter, ComparesMaskedSectionBytesWithTheValue) {
  struct Case {
    char const *value, *mask;
    bool matches;
  };
  for (Case const& c :
       {Case{"", "", true},
        {"42", "FF", true},
        {"43", "FF", false},
        {"40", "F0", true},
        {"42", "F0", false},  // the value is not masked
        {"00", "00", true},
        {"01", "00", false},
        {"42 F0 06", "FF FF FF", false},  // the length bytes count
        {"42 00 00 12 34", "FF 00 00 FF FF", true},
        {"42 F0 05 12 34 C1 00 01", "FF FF FF FF FF FF FF FF", true},
        {"42 F0 05 12 34 C1 00 02", "FF FF FF FF FF FF FF FF", false},
        {"42 F0 05 12 34 C1 00 01 FF", "FF FF FF FF FF FF FF FF FF", true},  // stuffing behind
        {"42 F0 05 12 34 C1 00 01 00", "FF FF FF FF FF FF FF FF FF", false}}) {
    HeapBlock const value(hex(c.value)), mask(hex(c.mask));
    PushHost host;
    host.add_psi_handler(pid, value.data(), mask.data(), value.size(), 0xFFFFFFFF);
    host.push(packet);
    EXPECT_EQ(host.filtered, c.matches ? (Filtered{{0xFFFFFFFF, section}}) : Filtered())
        << c.value << " under " << c.mask;
    EXPECT_FALSE((*host.of_pid(pid).filter_handlers.begin())->in_section);  // a mismatch ends its section too
  }
}

TEST(Filter, BytesOfEarlierSectionsDoNotCount) {
  for (bool const asks_for_more : {false, true}) {
    Bytes const value = section + hex(asks_for_more ? "11 00" : "00 00"),
                mask = Bytes(8, 0xFF) + hex(asks_for_more ? "FF 00" : "00 00");
    PushHost host;
    host.add_psi_handler(pid, value.data(), mask.data(), 10, 1);
    host.push(start_packet(pid, Bytes(183, 0x11)));
    host.push(exact_packet(pid, true, Bytes{0} + section));
    EXPECT_EQ(host.filtered.size(), asks_for_more ? 0u : 1u);
  }
}

TEST(Filter, SizesOutsideTheBuffer) {
  Bytes const zeros(8193, 0);
  for (int const size : {-1, 8192, 8193}) {
    PushHost host;
    host.add_psi_handler(pid, zeros.data(), zeros.data(), size, 1);
    host.push(packet);
    EXPECT_EQ(host.filtered.size(), size > 8192 ? 0u : 1u) << size;
  }
}

TEST(Filter, MaskAndValueStayTheHosts) {
  Bytes value{0x00}, mask{0x00};
  PushHost host;
  host.add_psi_handler(pid, value.data(), mask.data(), 1, 1);
  value[0] = 0x02;
  mask[0] = 0x0F;
  host.push(packet);
  EXPECT_EQ(host.filtered.size(), 1u);
}

TEST(Filter, SeveralOnAPidHaveEachTheirIdAndCopyBehindTheTable) {
  PushHost host;  // its filter hook writes into the section that it gets
  host.add_psi_handler(pid, 0x42);
  for (unsigned long const id : {5ul, 6ul, 6ul}) host.add_filter(pid, id);
  Bytes const longer = patterned_section(0x42, 300);
  host.push(start_packet(pid, part(longer, 0, 183)) + exact_packet(pid, false, part(longer, 183, 300)));
  EXPECT_EQ(host.calls, "ts 256 @4;ts 256 @192;field @259;section 256 66 108;filter;filter;filter;");
  EXPECT_EQ(host.sections, Sections{longer});
  std::sort(host.filtered.begin(), host.filtered.end());
  EXPECT_EQ(host.filtered, (Filtered{{5, longer}, {6, longer}, {6, longer}}));
}

TEST(Filter, SeesTablesWithoutAHandlerTheirTailsAndStuffing) {
  PushHost host;
  host.add_filter(pid, 1);
  host.push(start_packet(pid, {}));
  EXPECT_EQ((*host.of_pid(pid).filter_handlers.begin())->section_size, 183);
  Bytes const a = patterned_section(0x4A, 200), b = patterned_section(0x4B, 30);
  host.push(start_packet(pid, part(a, 0, 183)));
  host.push(exact_packet(pid, true, Bytes{17} + part(a, 183, 200) + b));
  EXPECT_EQ(host.filtered, (Filtered{{1, a}, {1, b}}));
}

}  // namespace
}  // namespace sivane::testing
