// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/ts_input.h"

#include <sivane/sivane.h>

#include <istream>

#include "input/followed_tables.h"

namespace inspect {

namespace {

constexpr int block_size = 1024 * sivane::ts_packet_size;

class Host final : public sivane::DemuxPush {
 public:
  Host(std::vector<Handle> const& handles, Command& command)
      : command_(command), follows_tables_(handles.empty()) {
    for (Handle const& handle : follows_tables_ ? usual_handles() : handles) {
      add_psi_handler(handle.pid, handle.table_id);
    }
  }

  /// Where the packet begins that comes next.
  long long offset() const { return packets_ * sivane::ts_packet_size; }

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

/// Pushes the whole packets of a block. False, and reported, where sync is lost.
bool push_block(Host& host, std::vector<unsigned char> const& block, int size) {
  int const tail = size % sivane::ts_packet_size;
  if (host.push_data(block.data(), size - tail) != 0) {
    report("no packet at offset " + std::to_string(host.offset()) +
           ": it does not begin with 0x47; the rest is left out");
    return false;
  }
  if (tail > 0) report("the last " + std::to_string(tail) + " bytes are less than a packet and left out");
  return true;
}

}  // namespace

bool read_ts(std::istream& in, std::vector<Handle> const& handles, Command& command) {
  Host host(handles, command);
  std::vector<unsigned char> block(block_size);
  while (in) {
    // Reads less than a block at the end only, so that a packet is never cut in two.
    in.read(reinterpret_cast<char*>(block.data()), block_size);
    if (!push_block(host, block, static_cast<int>(in.gcount()))) return false;
  }
  if (in.bad()) report("the input cannot be read on");
  return !in.bad();
}

}  // namespace inspect
