// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A driver, a script for its hooks, and packets. The first byte chooses the driver and how sections are
// assembled, the second the length of the script that follows it.
#include <cstdint>
#include <sstream>
#include <string>

#include "driven_hosts.h"

namespace {

using namespace sivane::fuzzing;

void run_push(Input script, Input packets, sivane::Reassembly mode) {
  PushHost host(script);
  host.set_reassembly(mode);
  std::vector<unsigned char> buffer;
  while (!packets.empty()) {
    unsigned char const control = append_packet(buffer, packets);
    if (!packets.empty() && (control & cut_behind) == 0) continue;
    if ((control & odd_size) != 0) buffer.push_back(sivane::ts_sync_byte);
    host.push(buffer);
    buffer.clear();
  }
}

/// The run goes on behind a failure of a hook, lost sync and a stop.
void run_istream(Input script, Input packets, sivane::Reassembly mode) {
  std::vector<unsigned char> bytes;
  unsigned char control = 0;
  while (!packets.empty()) control = append_packet(bytes, packets);
  if ((control & odd_size) != 0) bytes.pop_back();
  std::istringstream stream(std::string(bytes.begin(), bytes.end()));
  DemuxHost<sivane::DemuxIstream> host(script, stream);
  host.set_reassembly(mode);
  while (stream) host.run([&] { host.start(); });
}

void run_polled(Input script, Input packets, sivane::Reassembly mode) {
  PolledHost host(script, packets);
  host.set_reassembly(mode);
  while (!host.end_of_input()) host.run([&] { host.start(); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  constexpr std::array runs = {&run_push, &run_istream, &run_polled};
  Input input(data, size);
  std::size_t const choice = input.byte();
  bool const is_every = choice / runs.size() % 2 != 0;
  std::size_t const script_size = input.byte();
  Input const script = input.part(script_size);
  runs[choice % runs.size()](script, input,
                             is_every ? sivane::Reassembly::every_section : sivane::Reassembly::first_start);
  return 0;
}
