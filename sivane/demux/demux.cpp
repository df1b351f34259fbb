// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/demux.h>
#include <sivane/demux/reception.h>
#include <sivane/foundation/error.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <utility>

namespace sivane {

namespace {

constexpr int header_size = 4;

bool has_adaptation_field(Demux::TSHeader const& header) {
  return (header.adaptation_field_control & 2) != 0;
}

}  // namespace

Demux::TSHeader::TSHeader(unsigned char const* packet)
    : transport_error_indicator(packet[1] >> 7),
      payload_unit_start_indicator(packet[1] >> 6 & 1),
      transport_priority(packet[1] >> 5 & 1),
      pid((packet[1] & 0x1F) << 8 | packet[2]),
      transport_scrambling_control(packet[3] >> 6),
      adaptation_field_control(packet[3] >> 4 & 3),
      continuity_counter(packet[3] & 0xF) {
  if (packet[0] != ts_sync_byte) throw error("TS syncbyte expected");
}

void Demux::TSHeader::dump_state(std::ostream& os) const {
  os << "tei: " << transport_error_indicator << " pusi: " << payload_unit_start_indicator
     << " tp: " << transport_priority << " pid: " << std::hex << pid
     << " tsc: " << transport_scrambling_control << " afc: " << adaptation_field_control
     << " cc: " << continuity_counter << std::endl;
}

Demux::AdaptionFieldHeader::AdaptionFieldHeader(unsigned char const* field, int& length) {
  length = field[0] + 1;
}

/// The entry of a PID, made where there is none. One to which nothing could be added goes again.
class Demux::PidEntry {
 public:
  PidEntry(Demux& demux, int pid) : demux_(demux), entry_(demux.pid_handlers.find(pid)) {
    if (entry_ == demux.pid_handlers.end()) add(pid);
  }
  PidEntry(PidEntry const&) = delete;
  PidEntry& operator=(PidEntry const&) = delete;
  ~PidEntry() {
    if (handler().psi_handlers.empty() && handler().filter_handlers.empty()) demux_.drop_pid(entry_);
  }

  PidHandler& handler() const { return *entry_->second; }

 private:
  void add(int pid) {
    auto handler = std::make_unique<PidHandler>(demux_);
    if (demux_.reassembly_ == Reassembly::every_section) {
      handler->assemble_every_section(demux_.receptions_->add(pid).counters);
    }
    entry_ = demux_.pid_handlers.emplace(pid, handler.get()).first;
    handler.release();
    ++demux_.registered_;
    if (0 <= pid && pid < pid_count) demux_.handlers_[static_cast<std::size_t>(pid)] = entry_->second;
  }

  Demux& demux_;
  std::map<int, PidHandler*>::iterator entry_;
};

Demux::Demux() : handlers_(std::make_unique<PidHandler*[]>(pid_count)) {}

Demux::~Demux() { reset(); }

void Demux::reset() {
  while (!pid_handlers.empty()) drop_pid(pid_handlers.begin());
}

void Demux::add_psi_handler(int pid, int table_id) {
  PidEntry const entry(*this, pid);
  entry.handler().AddPsiHandler(table_id);
}

void Demux::add_psi_handler(int pid, unsigned char const* value, unsigned char const* mask, int size,
                            unsigned long id) {
  PidEntry const entry(*this, pid);
  entry.handler().AddPsiHandler(value, mask, size, id);
}

void Demux::remove_psi_handler(int pid, int table_id) {
  auto const entry = pid_handlers.find(pid);
  if (entry == pid_handlers.end()) return;
  entry->second->RemovePsiHandler(table_id);
  if (entry->second->psi_handlers.empty()) drop_pid(entry);
}

void Demux::dump_state(std::ostream& os) const {
  for (auto const& [pid, handler] : pid_handlers) {
    os << "pid: " << std::hex << pid << std::endl;
    handler->dump_state(os);
  }
}

void Demux::stop(int code) {
  stopped = true;
  exit_code = code;
}

void Demux::idle() {}
void Demux::on_raw_ts_packet(unsigned char const*) {}
void Demux::on_ts_packet(TSHeader const&, unsigned char const*) {}
void Demux::on_adaption_field_header_(AdaptionFieldHeader const&, unsigned char const*) {}
void Demux::on_psi_section(unsigned long, int, unsigned char*) {}
void Demux::on_psi_section(int, int, int, unsigned char const*) {}

int Demux::start() {
  unsigned char packet[ts_packet_size];
  int got = 0;
  while (read_buf(packet, ts_packet_size, got) && got == ts_packet_size && !stopped) {
    begin_packet(ts_packet_size);
    guard([&] { on_raw_ts_packet(packet); });
    bool const is_packet = packet[0] == ts_sync_byte;
    if (is_packet) route_packet(packet);
    pass_failure();
    if (!is_packet) return 2;
  }
  return exit_code;
}

void Demux::route_packet(unsigned char const* packet) {
  if (receptions_ != nullptr) {
    route_watched((packet[1] & 0x1F) << 8 | packet[2], packet);
    return;
  }
  TSHeader header(packet);
  Payload const payload = show_packet(header, packet);
  if (PidHandler* const handler = find_handler(header.pid))
    handler->parse(header, payload.data, payload.size);
}

Demux::Payload Demux::show_packet(TSHeader const& header, unsigned char const* packet) {
  on_ts_packet(header, packet + header_size);
  Payload const payload = payload_of(header, packet);
  if (has_adaptation_field(header)) {
    int field_length = 0;
    AdaptionFieldHeader const field(packet + header_size, field_length);
    on_adaption_field_header_(field, payload.data);
  }
  return payload;
}

Demux::Payload Demux::payload_of(TSHeader const& header, unsigned char const* packet) {
  int offset = header_size;
  if (has_adaptation_field(header)) offset = std::min(header_size + 1 + packet[header_size], ts_packet_size);
  return {packet + offset, ts_packet_size - offset};
}

void Demux::drop_pid(std::map<int, PidHandler*>::iterator entry) {
  auto const [pid, handler] = *entry;
  pid_handlers.erase(entry);
  --registered_;
  if (0 <= pid && pid < pid_count) handlers_[static_cast<std::size_t>(pid)] = nullptr;
  if (deliveries_ == 0) {
    delete handler;
    return;
  }
  handler->removed_ = true;
  handler->next_retired_ = std::exchange(retired_pids_, handler);
}

}  // namespace sivane
