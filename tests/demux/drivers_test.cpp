// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The push driver, the pull drivers on one source, and the driver that polls a source for each PID.
#include <gtest/gtest.h>

#include <deque>
#include <iterator>
#include <sstream>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int common_pid = 0x100;
Bytes const plain = make_packet({.pid = common_pid});
Bytes const with_field = make_packet(
    {.pid = common_pid, .start = true, .adaptation = 7, .payload = Bytes{0} + patterned_section(0x42, 20)});
Bytes const out_of_sync = Bytes{0x48} + part(plain, 1, 188);

TEST(Push, ResultsByBuffer) {
  struct Case {
    Bytes buffer;
    int result;
    char const* calls;
  };
  for (Case const& c : {Case{{}, 0, ""},
                        {Bytes(187, 0x47), -1, ""},
                        {plain + Bytes{0x47}, -1, ""},
                        {plain + plain, 0, "ts 256 @4;ts 256 @192;"},
                        {plain + out_of_sync + plain, 2, "ts 256 @4;"},
                        {plain + with_field, 0, "ts 256 @4;ts 256 @192;field @200;section 256 66 108;"}}) {
    PushHost host;
    host.add_psi_handler(common_pid, 0x42);
    host.on_call = [&](std::string const&) { host.stop(7); };  // without effect here
    EXPECT_EQ(host.push(c.buffer), c.result);
    EXPECT_EQ(host.calls, c.calls);
  }
  PushHost host;
  EXPECT_EQ(host.push_data(nullptr, -187), -1);
  EXPECT_EQ(host.push_data(nullptr, -188), 0);
}

TEST(Istream, EndsBehindTheLastWholePacketOrWhereItIsLostOrStopped) {
  struct Case {
    Bytes bytes;
    int result;
    char const* calls;
    std::size_t bytes_left = 0;
  };
  for (Case const& c : {Case{plain + with_field, 1, "raw;ts 256;raw;ts 256;field;section 256 66 108;"},
                        {plain + Bytes(1, 0x47), 1, "raw;ts 256;"},
                        {plain + Bytes(187, 0x47), 1, "raw;ts 256;"},
                        {plain + out_of_sync + plain, 2, "raw;ts 256;raw;", 188},
                        {plain, 7, "raw;ts 256;"},
                        // Each start reads one more, and drops it.
                        {plain + plain + plain + plain, 7, "raw;ts 256;", 188}}) {
    std::istringstream stream({c.bytes.begin(), c.bytes.end()});
    RecordingHost<DemuxIstream> host(stream);
    host.add_psi_handler(common_pid, 0x42);
    if (c.result == 7) host.on_call = [&](std::string const&) { host.stop(7); };
    EXPECT_EQ(host.start(), c.result);
    EXPECT_EQ(host.exit_code, c.result == 7 ? 7 : 1);
    EXPECT_EQ(c.result == 7 ? host.start() : 7, 7);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}).size(), c.bytes_left);
    EXPECT_EQ(host.calls, c.calls);
  }
}

/// Gives each PID its own packets, and ends after a number of passes.
class PollingHost : public RecordingHost<Demux2> {
 public:
  PollingHost(std::initializer_list<int> pids, int passes) : passes_left(passes) {
    for (int const pid : pids) add_psi_handler(pid, 0x42);
  }

  std::map<int, std::deque<Bytes>> packets;  // one that is shorter than 188 bytes is a short read
  int passes_left;
  std::string reads;  // the PIDs that were read, with "| " behind each pass

 private:
  bool read_buf(unsigned char*, int, int&) override { return ADD_FAILURE() << "never called", false; }
  bool read_buf(int pid, unsigned char* buffer, int size, int& got) override {
    EXPECT_EQ(size, 188);
    reads += std::to_string(pid) + ' ';
    auto& source = packets[pid];
    if (source.empty()) return false;
    std::copy(source.front().begin(), source.front().end(), buffer);
    got = static_cast<int>(source.front().size());
    source.pop_front();
    return true;
  }
  bool end_of_input() override { return passes_left == 0; }
  void idle() override {
    reads += "| ";
    --passes_left;
  }
};

Bytes const section = patterned_section(0x42, 200);
Bytes head(int pid) { return start_packet(pid, part(section, 0, 183)); }
Bytes rest(int pid) { return exact_packet(pid, false, part(section, 183, 200)); }

TEST(Polling, ReadsEachPidInTurnAndSkipsWhatFailsOrIsShort) {
  PollingHost host({0x3000, 20, 10}, 2), nobody({}, 2), no_pass({1}, 0);
  host.packets[10] = {head(10)};  // in the second pass it fails, and the length is still that of the first
  host.packets[20] = {Bytes(187, 0x47)};
  host.packets[0x3000] = {head(30)};
  for (PollingHost* const each : {&host, &nobody, &no_pass}) EXPECT_EQ(each->start(), 1);
  EXPECT_EQ(host.calls, "raw;ts 10;raw;ts 30;");
  EXPECT_EQ(host.reads, "10 20 12288 | 10 20 12288 | ");
  EXPECT_EQ(nobody.reads + no_pass.reads, "| | ");
}

TEST(Polling, APacketGoesToThePidItWasReadForAndNamesItsOwn) {
  PollingHost host({0x100, 0x200}, 2);
  host.packets[0x200] = {head(0x100), rest(0x300)};
  host.start();
  EXPECT_EQ(host.sections, Sections{section});
  EXPECT_EQ(host.calls, "raw;ts 256;raw;ts 768;field;section 768 66 108;");
}

TEST(Polling, LostSyncDropsTheTableHandlersSectionsOfEveryPid) {
  PollingHost host({10, 20}, 4);
  host.add_psi_handler(10, nullptr, nullptr, 0, 1);
  host.packets[10] = {head(10), rest(10), head(10), rest(10)};
  host.packets[20] = {Bytes(188, 0x48)};
  EXPECT_EQ(host.start(), 1);
  // The filter keeps its section, and the table handler gets the second one.
  EXPECT_EQ(host.calls,
            "raw;ts 10;raw;raw;ts 10;field;filter;raw;ts 10;raw;ts 10;field;section 10 66 108;filter;");
}

TEST(Polling, StopSetsTheResultAndEndsNothing) {
  PollingHost host({10}, 3);
  host.packets[10] = {head(10), rest(10)};
  host.on_call = [&](std::string const&) { host.stop(7); };
  EXPECT_EQ(host.start(), 7);
  EXPECT_EQ(host.sections.size(), 1u);
  EXPECT_EQ(host.reads, "10 | 10 | 10 | ");
}

TEST(Polling, APidThatAHookAddsIsReadFromTheNextStart) {
  for (int const added : {5, 15, 25}) {
    PollingHost host({10, 20}, 2);
    host.packets[10] = {head(10)};
    host.on_call = [&](std::string const&) { host.add_psi_handler(added, 0x42); };
    host.start();
    EXPECT_EQ(host.reads, "10 20 | 10 20 | ") << added;
    host.reads.clear();
    host.passes_left = 1;
    host.start();
    EXPECT_NE((' ' + host.reads).find(' ' + std::to_string(added) + ' '), std::string::npos);
  }
}

TEST(Polling, APidThatAHookRemovesIsReadNoMore) {
  for (auto const& [removed, reads] : std::map<int, char const*>{
           {10, "10 20 30 | 20 30 | "}, {20, "10 20 30 | 10 30 | "}, {30, "10 20 | 10 20 | "}}) {
    PollingHost host({10, 20, 30}, 2);
    host.packets[20] = {head(20)};
    host.on_call = [&, pid = removed](std::string const&) { host.remove_psi_handler(pid, 0x42); };
    host.start();
    EXPECT_EQ(host.reads, reads);
  }
}

TEST(PullDrivers, GiveEverySectionOnDemand) {
  Bytes const one = patterned_section(0x42, 20), both = start_packet(common_pid, one + one);
  auto const expect_both = [&](auto& driver) {
    driver.set_reassembly(Reassembly::every_section);
    driver.add_psi_handler(common_pid, 0x42);
    driver.start();
    EXPECT_EQ(driver.sections, (Sections{one, one}));
  };
  std::istringstream stream({both.begin(), both.end()});
  RecordingHost<DemuxIstream> istream(stream);
  expect_both(istream);
  PollingHost polling({}, 1);
  polling.packets[common_pid] = {both};
  expect_both(polling);
}

}  // namespace
}  // namespace sivane::testing
