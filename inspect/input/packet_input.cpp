// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/packet_input.h"

#include <sivane/sivane.h>

#include <algorithm>

#include "console.h"
#include "input/followed_tables.h"

namespace inspect {

namespace {

constexpr std::size_t packet_size = sivane::ts_packet_size;
constexpr std::size_t block_size = 1024 * packet_size;

class Host final : public sivane::DemuxPush {
 public:
  Host(std::vector<Handle> const& handles, Command& command)
      : command_(command), follows_tables_(handles.empty()) {
    for (Handle const& handle : follows_tables_ ? usual_handles() : handles) {
      add_psi_handler(handle.pid, handle.table_id);
    }
  }

  long long packets() const { return packets_; }

 protected:
  using DemuxPush::on_psi_section;

  void on_ts_packet(TSHeader const&, unsigned char const*) override { ++packets_; }

  void on_psi_section(int pid, int, int, unsigned char const* section) override {
    std::span<unsigned char const> const bytes(section, claimed_size(section));
    command_.take({.bytes = bytes, .pid = pid});
    if (!follows_tables_) return;
    for (Handle const& handle : handles_named_by(bytes)) add_psi_handler(handle.pid, handle.table_id);
  }

 private:
  Command& command_;
  bool follows_tables_;
  long long packets_ = 0;
};

/// How many of the bytes may be pushed: whole packets, and no more of them than were asked for.
std::size_t pushable(std::size_t size, Options const& options, Host const& host) {
  long long const packets = static_cast<long long>(size / packet_size);
  long long const wanted = options.packets.value_or(host.packets() + packets) - host.packets();
  return static_cast<std::size_t>(std::min(packets, wanted)) * packet_size;
}

}  // namespace

void read_packets(Source& source, Options const& options, Command& command) {
  Host host(options.handles, command);
  std::vector<unsigned char> block(block_size + Source::smallest_buffer);
  std::size_t held = 0;  // of a packet whose rest is still to come
  while (!options.packets || host.packets() < *options.packets) {
    std::size_t const size = source.read(std::span(block).subspan(held));
    if (size == 0) break;
    held += size;
    std::size_t const whole = pushable(held, options, host);
    if (host.push_data(block.data(), static_cast<int>(whole)) != 0) {
      throw InputFault("no packet at offset " + std::to_string(host.packets() * sivane::ts_packet_size) +
                       ": it does not begin with 0x47; the rest is left out");
    }
    std::copy(block.begin() + static_cast<std::ptrdiff_t>(whole),
              block.begin() + static_cast<std::ptrdiff_t>(held), block.begin());
    held -= whole;
  }
  bool const ended_early = options.packets && host.packets() == *options.packets;
  if (held > 0 && !ended_early)
    report("the last " + std::to_string(held) + " bytes are less than a packet and left out");
}

}  // namespace inspect
