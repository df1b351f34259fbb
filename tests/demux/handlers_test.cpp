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

TEST(Registration, AskingTwiceIsAskingOnceAndRemovingTheLastTableTakesTheFilters) {
  PushHost host;
  for (int const id : {0x42, 0x46}) host.add_psi_handler(pid, id);
  Demux::PSIHandler* const handler = &host.of_table(pid, 0x42);
  host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(&host.of_table(pid, 0x42), handler);
  host.add_filter(pid, 1);
  host.push(packet);
  host.remove_psi_handler(pid, 0x46);
  EXPECT_EQ(host.of_pid(pid).current, handler);
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

TEST(Registration, ResetDropsHandlersAndLeavesTheRest) {
  PushHost host;
  EXPECT_FALSE(host.stopped);
  for (int const other : {pid, pid + 1}) host.add_filter(other, 1);
  host.stop(7);
  host.reset();
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_TRUE(host.stopped);
  EXPECT_EQ(host.exit_code, 7);
  EXPECT_EQ(delivered(host), 0u);
  EXPECT_EQ(host.calls, "ts 256 @4;");
}

TEST(Registration, RangesAreNotTestedAndADumpListsPidsAndTablesInOrder) {
  PushHost host;
  for (int const number : {0x12345678, 0x1FFF, -1}) {
    for (int const id : {number, 0x42}) host.add_psi_handler(number, id);
  }
  host.add_filter(0x2000, 1);
  std::ostringstream os;
  host.of_table(-1, 0x42).dump_state(os);
  host.dump_state(os);
  EXPECT_EQ(os.str(),
            "table_id: 66\npid: ffffffff\ntable_id: ffffffff\ntable_id: 42\npid: 1fff\ntable_id: 42\n"
            "table_id: 1fff\npid: 2000\npid: 12345678\ntable_id: 42\ntable_id: 12345678\n");
  EXPECT_EQ(host.push(start_packet(0, section) + start_packet(0x1FFF, section)), 0);
  EXPECT_EQ(host.sections, Sections{section});
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

TEST(Filter, ComparesMaskedBytesOfItsSectionWithTheValue) {
  struct Case {
    char const *value, *mask;
    bool matches;
    char const* behind = "";  // the section, in its packet
  };
  for (Case const& c : {Case{"", "", true},
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
                        {"42 F0 05 12 34 C1 00 01 FF", "FF FF FF FF FF FF FF FF FF", true, "FF"},
                        {"42 F0 05 12 34 C1 00 01 00", "FF FF FF FF FF FF FF FF FF", false, "FF"},
                        // Bytes of an earlier section do not.
                        {"42 F0 05 12 34 C1 00 01 11 00", "FF FF FF FF FF FF FF FF FF 00", false},
                        {"42 F0 05 12 34 C1 00 01 00 00", "FF FF FF FF FF FF FF FF 00 00", true}}) {
    Bytes const wanted = hex(c.value), mask_bytes = hex(c.mask);
    HeapBlock const value(Bytes(wanted.size())), mask(Bytes(wanted.size()));
    PushHost host;
    host.add_psi_handler(pid, value.data(), mask.data(), value.size(), 0xFFFFFFFF);
    std::copy(wanted.begin(), wanted.end(), value.data());  // both are read where they are
    std::copy(mask_bytes.begin(), mask_bytes.end(), mask.data());
    host.push(start_packet(pid, Bytes(183, 0x11)) +
              exact_packet(pid, true, Bytes{0} + section + hex(c.behind)));
    EXPECT_EQ(host.filtered, c.matches ? (Filtered{{0xFFFFFFFF, section}}) : Filtered())
        << c.value << " under " << c.mask;
    EXPECT_FALSE((*host.of_pid(pid).filter_handlers.begin())->in_section);  // a mismatch ends its section too
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
