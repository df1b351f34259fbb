// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>
#include <sivane/tables/pat.h>

#include <array>
#include <sstream>
#include <thread>

#include "recording_host.h"

namespace sivane::testing {
namespace {

/// Parses and dumps every PAT; a damaged one is counted.
class PatHost : public DemuxPush {
 public:
  std::string dumps;
  int failures = 0;

 private:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    try {
      Pat pat;
      pat.Parse(section);
      std::ostringstream os;
      pat.dump_state(os);
      dumps += os.str();
    } catch (error const&) {
      ++failures;
    }
  }
};

Bytes numbered_stream(int number) {
  PacketWriter writer;
  for (int version = 0; version < 32; ++version) {
    Bytes pat =
        make_pat({{number, 0x20}, {2, 0x100 + version}}, {.context_id = number, .version_number = version});
    writer.section(0, pat);
    pat[8] ^= 1;  // now its CRC is wrong
    writer.section(0, pat);
  }
  return writer.stream();
}

void run(int number, PatHost& host) {
  const Bytes stream = numbered_stream(number);
  for (int round = 0; round < 20; ++round) {
    host.add_psi_handler(0, 0);
    host.push_data(stream.data(), static_cast<int>(stream.size()));
    host.reset();
  }
}

TEST(Threads, EachWithItsOwnDemuxAndTables) {
  constexpr int count = 4;
  std::array<PatHost, count> hosts;
  std::vector<std::thread> threads;
  for (int i = 0; i < count; ++i)
    threads.emplace_back([&hosts, i] { run(i, hosts.at(static_cast<std::size_t>(i))); });
  for (std::thread& thread : threads) thread.join();
  for (int i = 0; i < count; ++i) {
    PatHost alone;
    run(i, alone);
    EXPECT_FALSE(alone.dumps.empty());
    EXPECT_EQ(hosts.at(static_cast<std::size_t>(i)).dumps, alone.dumps);
    EXPECT_EQ(hosts.at(static_cast<std::size_t>(i)).failures, 20 * 32);
  }
}

}  // namespace
}  // namespace sivane::testing
