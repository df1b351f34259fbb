// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/assembly.h>

#include <algorithm>

namespace sivane {

namespace {

constexpr unsigned char stuffing = 0xFF;

}  // namespace

void Demux::PidHandler::Assembly::take(int pid, bool unit_start, unsigned char const* payload, int size) {
  pid_ = pid;
  was_cleared_ = false;
  if (!unit_start) {
    take_tail(payload, size);
    return;
  }
  int const pointer = payload[0];
  if (pointer > size - 1) {  // leads out of the packet: nothing in it can be told apart
    cut();
    return;
  }
  take_tail(payload + 1, pointer);
  if (is_over()) return;
  cut();  // it should have ended where the next one starts
  take_starts(payload + 1 + pointer, size - 1 - pointer);
}

void Demux::PidHandler::Assembly::cut() {
  if (held_ > 0 && is_wanted_) ++counters_.cut_sections;
  held_ = 0;
}

void Demux::PidHandler::Assembly::clear() {
  held_ = 0;
  was_cleared_ = true;
}

/// Bytes that belong to the section in progress. What stands behind its end is stuffing: where another
/// section starts, the packet says so.
void Demux::PidHandler::Assembly::take_tail(unsigned char const* data, int size) {
  if (held_ == 0) return;
  append(data, size);
}

void Demux::PidHandler::Assembly::take_starts(unsigned char const* data, int size) {
  while (size > 0 && data[0] != stuffing && !is_over()) {
    int const done = take_start(data, size);
    data += done;
    size -= done;
  }
}

int Demux::PidHandler::Assembly::take_start(unsigned char const* data, int size) {
  begin_section(data[0]);
  int const whole = size >= header_size ? section_size(data) : size + 1;
  if (whole > size) return append(data, size);
  if (is_wanted_) deliver(data, whole);
  return whole;
}

void Demux::PidHandler::Assembly::begin_section(unsigned char table_id) {
  is_wanted_ = !owner_.filter_handlers.empty() || owner_.psi_handlers.count(table_id) != 0;
  began_at_ = owner_.demux.packet_offset_;
  began_in_ = owner_.demux.parsed_;
}

int Demux::PidHandler::Assembly::append(unsigned char const* data, int size) {
  int done = 0;
  while (done < size && (held_ < header_size || held_ < need_)) {
    bool const in_header = held_ < header_size;
    int const count = std::min(size - done, (in_header ? header_size : need_) - held_);
    if (in_header || is_wanted_) std::copy_n(data + done, count, section_ + held_);
    done += count;
    held_ += count;
    if (in_header && held_ == header_size) need_ = section_size(section_);
  }
  if (held_ >= header_size && held_ == need_) {
    held_ = 0;
    if (is_wanted_) deliver(section_, need_);
  }
  return done;
}

void Demux::PidHandler::Assembly::deliver(unsigned char const* section, int size) {
  ++counters_.sections;
  owner_.demux.section_offset_ = began_at_;
  deliver_to_table(section, size);
  if (!is_over()) deliver_to_filters(section, size);
}

void Demux::PidHandler::Assembly::deliver_to_table(unsigned char const* section, int size) {
  auto const entry = owner_.psi_handlers.find(section[0]);
  if (entry == owner_.psi_handlers.end() || entry->second->added_in_ >= began_in_) return;
  int const section_number = size > 6 ? section[6] : 0;
  Demux& host = owner_.demux;
  host.guard([&] { host.on_psi_section(pid_, section[0], section_number, section); });
}

void Demux::PidHandler::Assembly::deliver_to_filters(unsigned char const* section, int size) {
  Demux& host = owner_.demux;
  for (PSIFilterHandler* const filter : owner_.filter_handlers) {
    if (filter->added_in_ >= began_in_ || !filter->matches(section, size)) continue;
    std::copy_n(section, size, filter->section);
    host.guard([&] { host.on_psi_section(filter->id, size, filter->section); });
    if (is_over()) return;
  }
}

}  // namespace sivane
