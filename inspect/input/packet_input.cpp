// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/packet_input.h"

#include <algorithm>
#include <vector>

#include "console.h"
#include "input/command_host.h"
#include "input/losses.h"
#include "input/progress.h"

namespace inspect {

namespace {

constexpr std::size_t packet_size = sivane::ts_packet_size;

class Host final : public CommandHost<sivane::DemuxPush> {
 public:
  using CommandHost::CommandHost;
  long long packets() const { return packets_; }

 private:
  void on_ts_packet(TSHeader const&, unsigned char const*) override { ++packets_; }

  long long packets_ = 0;
};

/// How many of the bytes may be pushed: whole packets, and no more of them than were asked for.
std::size_t pushable(std::size_t size, Options const& options, Host const& host) {
  long long const packets = static_cast<long long>(size / packet_size);
  long long const wanted = options.packets.value_or(host.packets() + packets) - host.packets();
  return static_cast<std::size_t>(std::min(packets, wanted)) * packet_size;
}

void push_all(Source& source, Options const& options, Host& host) {
  std::vector<unsigned char> block(4 * Source::smallest_buffer);
  Progress progress(source, options);
  std::size_t held = 0;  // of a packet whose rest is still to come
  while (!options.packets || host.packets() < *options.packets) {
    std::size_t const size = source.read(std::span(block).subspan(held));
    if (size == 0) break;
    progress.add(size);
    held += size;
    std::size_t const whole = pushable(held, options, host);
    if (host.push_data(block.data(), static_cast<int>(whole)) != 0) {
      throw InputFault(source.name() + ": no packet at offset " +
                       std::to_string(host.packets() * sivane::ts_packet_size) +
                       ": it does not begin with 0x47; the rest is left out");
    }
    std::copy(block.data() + whole, block.data() + held, block.data());
    held -= whole;
  }
  bool const ended_early = options.packets && host.packets() == *options.packets;
  if (held > 0 && !ended_early)
    report("the last " + std::to_string(held) + " bytes are less than a packet and left out");
}

}  // namespace

void read_packets(Source& source, Options const& options, Command& command) {
  Host host(options, command);
  if (command.wants_packets()) host.count_all();
  push_all(source, options, host);
  if (command.wants_packets()) command.take_packets(counts_of(host));
}

}  // namespace inspect
