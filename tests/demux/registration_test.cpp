// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>

#include <sstream>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
const Bytes section = patterned_section(0x42, 20);
const Bytes packet = make_packet({.pid = pid, .start = true, .payload = Bytes{0} + section});

std::size_t delivered(PushHost& host) {
  host.sections.clear();
  host.filtered.clear();
  EXPECT_EQ(host.push(packet), 0);
  return host.sections.size() + host.filtered.size();
}

TEST(Registration, ANewDemuxHasNoHandlers) {
  PushHost host;
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_FALSE(host.stopped);
  EXPECT_EQ(host.exit_code, 1);
  EXPECT_EQ(delivered(host), 0u);
  EXPECT_EQ(host.calls, std::vector<std::string>{"ts 256 @4"});
}

TEST(Registration, AskingTwiceIsAskingOnce) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  Demux::PSIHandler* const handler = &host.handler(pid, 0x42);
  host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(&host.handler(pid, 0x42), handler);
  EXPECT_EQ(delivered(host), 1u);
  host.remove_psi_handler(pid, 0x42);
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_EQ(delivered(host), 0u);
}

TEST(Registration, RemovingTheLastTableTakesTheFilters) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  host.add_psi_handler(pid, 0x46);
  host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
  host.remove_psi_handler(pid, 0x46);
  EXPECT_EQ(delivered(host), 2u);
  host.remove_psi_handler(pid, 0x99);  // no such table, and one is left
  EXPECT_EQ(delivered(host), 2u);
  host.remove_psi_handler(pid + 1, 0x42);  // no such PID
  EXPECT_EQ(delivered(host), 2u);
  host.remove_psi_handler(pid, 0x42);
  EXPECT_EQ(delivered(host), 0u);
}

TEST(Registration, AnyTableIdDropsThePidOfFiltersAlone) {
  PushHost host;
  host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
  EXPECT_EQ(delivered(host), 1u);
  host.remove_psi_handler(pid, 0x99);
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_EQ(delivered(host), 0u);
}

TEST(Registration, RemovingTheCurrentHandlerClearsIt) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  host.add_psi_handler(pid, 0x46);
  host.push(packet);
  Demux::PidHandler& handler = *host.pid_handlers.at(pid);
  EXPECT_EQ(handler.current, &host.handler(pid, 0x42));
  host.remove_psi_handler(pid, 0x46);
  EXPECT_EQ(handler.current, &host.handler(pid, 0x42));
  host.add_psi_handler(pid, 0x46);
  host.remove_psi_handler(pid, 0x42);
  EXPECT_EQ(handler.current, nullptr);
}

TEST(Registration, ResetDropsHandlersAndLeavesTheRest) {
  PushHost host;
  host.add_psi_handler(pid, 0x42);
  host.add_psi_handler(pid + 1, nullptr, nullptr, 0, 1);
  host.stop(7);
  host.reset();
  EXPECT_TRUE(host.pid_handlers.empty());
  EXPECT_TRUE(host.stopped);
  EXPECT_EQ(host.exit_code, 7);
  EXPECT_EQ(delivered(host), 0u);
  EXPECT_EQ(host.calls.size(), 1u);  // the packet hooks go on
  host.add_psi_handler(pid, 0x42);
  EXPECT_EQ(delivered(host), 1u);
}

TEST(Registration, RangesAreNotTested) {
  PushHost host;
  for (const int number : {-1, 0, 0x1FFF, 0x2000, 0x12345678}) host.add_psi_handler(number, number);
  EXPECT_EQ(host.pid_handlers.size(), 5u);
  EXPECT_EQ(delivered(host), 0u);
  for (const int number : {-1, 0, 0x1FFF, 0x2000, 0x12345678}) host.remove_psi_handler(number, number);
  EXPECT_TRUE(host.pid_handlers.empty());
}

TEST(Registration, DumpListsPidsAndTablesInOrder) {
  PushHost host;
  host.add_psi_handler(0x1FFF, 0x4E);
  host.add_psi_handler(0x10, 0x42);
  host.add_psi_handler(0x10, 0x0A);
  host.add_psi_handler(0x11, nullptr, nullptr, 0, 1);
  std::ostringstream os;
  static_cast<Demux const&>(host).dump_state(os);
  EXPECT_EQ(os.str(), "pid: 10\ntable_id: a\ntable_id: 42\npid: 11\npid: 1fff\ntable_id: 4e\n");
  std::ostringstream decimal;
  host.handler(0x10, 0x42).dump_state(decimal);
  EXPECT_EQ(decimal.str(), "table_id: 66\n");
}

}  // namespace
}  // namespace sivane::testing
