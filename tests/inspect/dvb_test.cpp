// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A DVB adapter, for which a stand-in answers.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/dvb/dmx.h>
#include <packet_writer.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <sstream>

#include "commands/sections.h"
#include "console.h"
#include "input/dvb_input.h"
#include "input/source.h"
#include "run_inspect.h"

namespace sivane::testing {
namespace {

/// Gives the packets of each PID that was asked for; an empty read is an overflow.
class StandIn final : public ::inspect::DvbCalls {
 public:
  int open(char const* path) override {
    paths.push_back(path);
    return static_cast<int>(paths.size()) > filters ? (errno = EMFILE, -1) : ::open("/dev/null", O_RDONLY);
  }
  int ioctl(int file, unsigned long request, void* argument) override {
    if (request != DMX_SET_PES_FILTER) return -1;  // some drivers refuse a buffer's size
    auto const& filter = *static_cast<dmx_pes_filter_params const*>(argument);
    EXPECT_EQ(filter.output, DMX_OUT_TSDEMUX_TAP);
    EXPECT_EQ(filter.flags, static_cast<unsigned int>(DMX_IMMEDIATE_START));
    pids[file] = filter.pid;
    return 0;
  }
  int poll(pollfd*, nfds_t, int) override { return ++polls; }
  ssize_t read(int file, unsigned char* buffer, std::size_t size) override {
    std::vector<Bytes>& left = packets[pids[file]];
    if (left.empty()) return errno = EAGAIN, -1;
    Bytes const next = left.front();
    left.erase(left.begin());
    if (next.empty()) return errno = EOVERFLOW, -1;
    EXPECT_GE(size, next.size());
    std::copy(next.begin(), next.end(), buffer);
    return std::ssize(next);
  }

  int filters = 100;
  int polls = 0;
  std::vector<std::string> paths;
  std::map<int, int> pids;  // by file
  std::map<int, std::vector<Bytes>> packets;
};

Bytes packet_of(int pid, Bytes const& section, int continuity) {
  return make_packet({.pid = pid, .start = true, .continuity = continuity, .payload = Bytes{0} + section});
}

Bytes const pat = make_pat({{1, 0x100}});
Bytes const pmt = make_section({.table_id = 0x02, .context_id = 1}, hex("E101 F000"));
std::string const lines = "0x0000 0x00 " + hex_text(pat) + "\n0x0100 0x02 " + hex_text(pmt) + "\n";

std::string sections_of(StandIn& device, std::string const& source, int packets) {
  std::ostringstream out;
  ::inspect::SectionsCommand command({out});
  ::inspect::RunEnd end(10, [] {});
  ::inspect::Options options;
  options.source = source;
  options.packets = packets;
  ::testing::internal::CaptureStderr();
  std::string fault;
  try {
    ::inspect::read_dvb(options, command, end, device);
  } catch (::inspect::NoInput const& none) {
    fault = none.what();
  }
  ::inspect::print_conclusions();
  return out.str() + ::testing::internal::GetCapturedStderr() + fault;
}

}  // namespace

TEST(InspectDvb, SetsAFilterForEachPidThatTheTablesName) {
  StandIn device;
  device.packets[0] = {packet_of(0, pat, 0)};
  device.packets[0x100] = {packet_of(0x100, pmt, 0)};
  EXPECT_EQ(sections_of(device, "dvb://2/1", 2), lines);
  EXPECT_EQ(device.paths.front(), "/dev/dvb/adapter2/demux1");
  auto const has = [&device](int pid) {
    return std::ranges::count(device.pids, pid, [](auto const& one) { return one.second; });
  };
  for (int const pid : {0, 1, 0x10, 0x11, 0x12, 0x13, 0x14, 0x100}) EXPECT_EQ(has(pid), 1) << pid;
}

TEST(InspectDvb, AnOverflowIsALossAndNotAnEnd) {
  StandIn device;
  Bytes const first = packet_of(0, pat, 0);
  Bytes const half(first.begin(), first.begin() + 100);
  device.packets[0] = {half, {}, first, {}, packet_of(0, pat, 3)};
  std::string const shown = sections_of(device, "dvb://0", 2);
  EXPECT_EQ(shown, "0x0000 0x00 " + hex_text(pat) + "\n0x0000 0x00 " + hex_text(pat) +
                       "\nsivane-inspect: /dev/dvb/adapter0/demux0: 2 overflows of the kernel's buffer\n"
                       "sivane-inspect: PID 0x0000: 1 gap, 2 missing packets\n");
}

TEST(InspectDvb, ShowsWhatTheFiltersSufficeFor) {
  StandIn device;
  device.filters = 7;  // those of the usual PIDs
  device.packets[0] = {packet_of(0, pat, 0), packet_of(0, pat, 1)};
  std::string const shown = sections_of(device, "dvb://0", 2);
  EXPECT_NE(shown.find("cannot open /dev/dvb/adapter0/demux0: Too many open files"), std::string::npos)
      << shown;
  EXPECT_EQ(device.paths.size(), 8u);
  device.filters = 0;
  EXPECT_EQ(sections_of(device, "dvb://0", 2), "cannot open /dev/dvb/adapter0/demux0: Too many open files");
}

TEST(InspectDvb, TakesNumbersAlone) {
  for (char const* const source : {"dvb://", "dvb://x", "dvb://0/", "dvb://0/0/0", "dvb://../0"}) {
    StandIn device;
    EXPECT_EQ(sections_of(device, source, 1),
              std::string(source) + " is not dvb://ADAPTER[/DEMUX] in numbers");
  }
}

}  // namespace sivane::testing
