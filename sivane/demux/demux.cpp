// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/demux.h>
#include <sivane/demux/reception.h>

#include <memory>
#include <ostream>
#include <utility>

namespace sivane {

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
    begin_packet();
    guard([&] { on_raw_ts_packet(packet); });
    bool const is_packet = packet[0] == ts_sync_byte;
    if (is_packet) route_packet(packet);
    pass_failure();
    if (!is_packet) return 2;
  }
  return exit_code;
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
