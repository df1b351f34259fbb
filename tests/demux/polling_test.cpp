// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The driver that polls a source for each PID.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>

#include "recording_host.h"

namespace sivane::testing {
namespace {

using Calls = std::vector<std::string>;

/// Gives each PID its own packets, and ends after a number of passes.
class PollingHost : public RecordingHost<Demux2> {
 public:
  std::map<int, std::deque<Bytes>> packets;  // one that is shorter than 188 bytes is a short read
  int passes = 1;
  Calls reads;  // the PIDs that were read, with "|" behind each pass

  void give(int pid, std::vector<Bytes> const& more) {
    packets[pid].insert(packets[pid].end(), more.begin(), more.end());
  }

 private:
  bool read_buf(unsigned char*, int, int&) override {
    ADD_FAILURE() << "the three-argument read_buf is never called";
    return false;
  }
  bool read_buf(int pid, unsigned char* buffer, int size, int& got) override {
    EXPECT_EQ(size, 188);
    reads.push_back(std::to_string(pid));
    auto& source = packets[pid];
    if (source.empty()) return false;
    std::copy(source.front().begin(), source.front().end(), buffer);
    got = static_cast<int>(source.front().size());
    source.pop_front();
    return true;
  }
  bool end_of_input() override { return passes == 0; }
  void idle() override {
    reads.push_back("|");
    --passes;
  }
};

const Bytes section = patterned_section(0x42, 200);
Bytes head(int pid) { return exact_packet(pid, true, Bytes{0} + part(section, 0, 183)); }
Bytes rest(int pid) { return exact_packet(pid, false, part(section, 183, 200)); }

TEST(Polling, EndOfInputAtOnceReadsNothing) {
  PollingHost host;
  host.add_psi_handler(1, 0x42);
  host.passes = 0;
  EXPECT_EQ(host.start(), 1);
  EXPECT_TRUE(host.reads.empty());
  EXPECT_TRUE(host.calls.empty());
}

TEST(Polling, ReadsEachPidInTurnAndIdlesAfterEachPass) {
  PollingHost host;
  for (const int pid : {0x3000, 20, 10}) host.add_psi_handler(pid, 0x42);
  host.passes = 2;
  EXPECT_EQ(host.start(), 1);
  EXPECT_EQ(host.reads, (Calls{"10", "20", "12288", "|", "10", "20", "12288", "|"}));
}

TEST(Polling, WithoutAPidItIdles) {
  PollingHost host;
  host.passes = 3;
  EXPECT_EQ(host.start(), 1);
  EXPECT_EQ(host.reads, (Calls{"|", "|", "|"}));
}

TEST(Polling, AFailingOrShortSourceIsSkipped) {
  PollingHost host;
  for (const int pid : {10, 20, 30}) host.add_psi_handler(pid, 0x42);
  host.give(20, {Bytes(187, 0x47)});
  host.give(30, {head(30)});
  host.start();
  EXPECT_EQ(host.calls, (Calls{"raw", "ts 30"}));
  EXPECT_EQ(host.reads, (Calls{"10", "20", "30", "|"}));
}

TEST(Polling, APacketGoesToThePidItWasReadFor) {
  PollingHost host;
  host.add_psi_handler(0x100, 0x42);
  host.add_psi_handler(0x200, 0x42);
  host.give(0x200, {head(0x100), rest(0x300)});
  host.passes = 2;
  host.start();
  // The section hook names the PID of the packet that completed the section.
  EXPECT_EQ(host.calls.back(), "section 768 66 " + std::to_string(section[6]));
  EXPECT_EQ(host.sections, Sections{section});
  EXPECT_EQ(host.calls, (Calls{"raw", "ts 256", "raw", "ts 768", "field", host.calls.back()}));
}

TEST(Polling, LostSyncDropsTheTableHandlersSectionsOfEveryPid) {
  PollingHost host;
  host.add_psi_handler(10, 0x42);
  host.add_psi_handler(10, nullptr, nullptr, 0, 1);
  host.add_psi_handler(20, 0x42);
  host.give(10, {head(10), rest(10), head(10), rest(10)});
  host.give(20, {Bytes(188, 0x48), Bytes(188, 0x48)});
  host.passes = 4;
  EXPECT_EQ(host.start(), 1);
  EXPECT_EQ(host.filtered.size(), 2u);  // filters keep theirs
  EXPECT_EQ(host.sections.size(), 1u);  // the second, for which the source of 20 gives nothing more
  EXPECT_EQ(std::count(host.calls.begin(), host.calls.end(), "raw"), 6);
  EXPECT_EQ(std::count(host.calls.begin(), host.calls.end(), "ts 20"), 0);
}

TEST(Polling, StopSetsTheResultAndEndsNothing) {
  PollingHost host;
  host.add_psi_handler(10, 0x42);
  host.give(10, {head(10), rest(10)});
  host.passes = 3;
  host.on_call = [&](std::string const&) { host.stop(7); };
  EXPECT_EQ(host.start(), 7);
  EXPECT_EQ(host.sections.size(), 1u);
  EXPECT_EQ(std::count(host.reads.begin(), host.reads.end(), "|"), 3);
}

TEST(Polling, HookExceptionsPassThrough) {
  PollingHost host;
  host.add_psi_handler(10, 0x42);
  host.give(10, {head(10)});
  host.on_call = [](std::string const&) { throw 7; };
  EXPECT_THROW(host.start(), int);
}

TEST(Polling, APidThatAHookAddsLeavesTheOthersTheirTurn) {
  for (const int added : {5, 15, 25}) {
    PollingHost host;
    host.add_psi_handler(10, 0x42);
    host.add_psi_handler(20, 0x42);
    host.give(10, {head(10)});
    host.on_call = [&](std::string const&) { host.add_psi_handler(added, 0x42); };
    host.passes = 3;
    host.start();
    EXPECT_EQ(std::count(host.reads.begin(), host.reads.end(), "10"), 3) << added;
    EXPECT_EQ(std::count(host.reads.begin(), host.reads.end(), "20"), 3) << added;
    EXPECT_EQ(std::count(host.reads.begin(), host.reads.end(), std::to_string(added)), 0) << added;
    host.reads.clear();
    host.passes = 1;
    host.start();
    EXPECT_EQ(host.reads.size(), 4u);
  }
}

TEST(Polling, APidThatAHookRemovesIsReadNoMore) {
  for (const int removed : {10, 20, 30}) {
    PollingHost host;
    for (const int pid : {10, 20, 30}) host.add_psi_handler(pid, 0x42);
    host.give(20, {head(20)});
    host.on_call = [&](std::string const&) { host.remove_psi_handler(removed, 0x42); };
    host.passes = 2;
    host.start();
    Calls second_pass{"10", "20", "30", "|"};
    second_pass.erase(std::find(second_pass.begin(), second_pass.end(), std::to_string(removed)));
    ASSERT_GE(host.reads.size(), 3u);
    EXPECT_EQ(Calls(host.reads.end() - 3, host.reads.end()), second_pass) << removed;
  }
  PollingHost host;
  host.add_psi_handler(10, 0x42);
  host.give(10, {head(10)});
  host.on_call = [&](std::string const&) { host.reset(); };
  EXPECT_EQ(host.start(), 1);
}

}  // namespace
}  // namespace sivane::testing
