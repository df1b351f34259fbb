// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What goes beyond the plain drivers: every section, and counters.
#include <sivane/demux/demux.h>
#include <sivane/demux/reception.h>

namespace sivane {

void Demux::set_reassembly(Reassembly mode) {
  if (mode == Reassembly::every_section) {
    if (receptions_ == nullptr) receptions_ = std::make_unique<Receptions>();
    for (auto const& [pid, handler] : pid_handlers) {
      handler->assemble_every_section(receptions_->add(pid).counters);
    }
  }
  for (auto const& [pid, handler] : pid_handlers) handler->drop_sections();
  reassembly_ = mode;
}

void Demux::count(int pid) {
  if (receptions_ == nullptr) receptions_ = std::make_unique<Receptions>();
  receptions_->add(pid);
}

void Demux::count_all() {
  for (int pid = 0; pid < pid_count; ++pid) count(pid);
}

PidCounters const* Demux::counters(int pid) const {
  Reception const* const reception = receptions_ != nullptr ? receptions_->find(pid) : nullptr;
  return reception != nullptr ? &reception->counters : nullptr;
}

void Demux::report_crc_failure(int pid) {
  Reception* const reception = receptions_ != nullptr ? receptions_->find(pid) : nullptr;
  if (reception != nullptr) ++reception->counters.crc_failures;
}

void Demux::route_watched(int pid, unsigned char const* packet) {
  TSHeader header(packet);
  guard([&] { show_packet(header, packet); });
  Reception* const reception = receptions_->find(pid);
  Reception::Arrival const arrival =
      reception != nullptr ? reception->take(packet, packet_offset_) : Reception::Arrival();
  if (arrival.missing > 0 && gap_listener_ != nullptr) {
    guard([&] { gap_listener_->on_gap({pid, arrival.missing, packet_offset_}); });
  }
  PidHandler* const handler = find_handler(pid);
  if (handler == nullptr) return;
  bool const takes_all = reassembly_ == Reassembly::first_start;
  if (arrival.is_cut && !takes_all) handler->cut_section();
  Payload const payload = payload_of(header, packet);
  if (arrival.is_readable || takes_all) handler->parse(header, payload.data, payload.size);
}

}  // namespace sivane
