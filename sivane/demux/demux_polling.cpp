// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/demux.h>
#include <sivane/foundation/trace_log.h>

#include <array>
#include <vector>

namespace sivane {

int Demux2::start() {
  struct Source {
    int pid;
    int length = 0;
    std::array<unsigned char, ts_packet_size> packet = {};
  };
  // A hook may change the map: the turns are those of the PIDs that are handled now.
  std::vector<Source> sources;
  for (auto const& [pid, handler] : pid_handlers) sources.push_back({pid});
  while (!end_of_input()) {
    for (Source& source : sources) {
      if (pid_handlers.count(source.pid) != 0) poll(source.pid, source.packet.data(), source.length);
    }
    idle();
  }
  return exit_code;
}

void Demux2::poll(int pid, unsigned char* packet, int& length) {
  bool const result = read_buf(pid, packet, ts_packet_size, length);
  log_write(3, "read_buf(%d)=%d", length, result ? 1 : 0);
  if (!result || length != ts_packet_size) return;
  log_write(3, "bytes read");
  begin_packet();
  guard([&] { on_raw_ts_packet(packet); });
  if (packet[0] != ts_sync_byte) {
    log_write(3, "invalid sync byte");
    invalidate();
  } else if (receptions_ != nullptr) {
    route_watched(pid, packet);
  } else {
    TSHeader header(packet);
    Payload const payload = show_packet(header, packet);
    PidHandler* const handler = find_handler(pid);
    if (handler != nullptr) handler->parse(header, payload.data, payload.size);
  }
  pass_failure();
}

void Demux2::invalidate() {
  for (auto const& [pid, handler] : pid_handlers) handler->invalidate();
}

}  // namespace sivane
