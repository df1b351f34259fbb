// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>
#include <sivane/tables/pat.h>

#include <sstream>
#include <thread>

#include "recording_host.h"

namespace sivane::testing {
namespace {

/// The dumps of all PATs of a stream; a damaged one is noted.
std::string run(int number) {
  PacketWriter writer;
  for (int version = 0; version < 32; ++version) {
    Bytes pat =
        make_pat({{number, 0x20}, {2, 0x100 + version}}, {.context_id = number, .version_number = version});
    writer.section(0, pat);
    pat[8] ^= 1;  // now its CRC is wrong
    writer.section(0, pat);
  }
  std::ostringstream dumps;
  PushHost host;
  for (int round = 0; round < 20; ++round) {
    host.add_psi_handler(0, 0);
    host.push(writer.stream());
    host.reset();
  }
  for (Bytes const& section : host.sections) {
    try {
      Pat pat;
      pat.Parse(section.data());
      pat.dump_state(dumps);
    } catch (error const& failure) {
      dumps << failure.what();
    }
  }
  return dumps.str();
}

TEST(Threads, EachWithItsOwnDemuxAndTables) {
  std::vector<std::string> dumps(4);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < dumps.size(); ++i) {
    threads.emplace_back([&dump = dumps[i], i] { dump = run(static_cast<int>(i)); });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 0; i < dumps.size(); ++i) {
    EXPECT_EQ(dumps[i], run(static_cast<int>(i)));
    EXPECT_NE(dumps[i].find("crc error"), std::string::npos);
  }
}

}  // namespace
}  // namespace sivane::testing
