// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/reception.h>

#include <algorithm>

namespace sivane {

namespace {

// Where the fields of a packet stand (ISO/IEC 13818-1, 2.4.3.2 and 2.4.3.4).
constexpr int flags_at = 5;
constexpr int pcr_at = 6;
constexpr int behind_pcr = 12;

bool has_payload(unsigned char const* packet) { return (packet[3] & 0x10) != 0; }
bool is_scrambled(unsigned char const* packet) { return (packet[3] & 0xC0) != 0; }
int counter_of(unsigned char const* packet) { return packet[3] & 0xF; }

/// The length of the adaptation field behind its length byte, 0 where there is none.
int field_length(unsigned char const* packet) { return (packet[3] & 0x20) != 0 ? packet[4] : 0; }

bool is_discontinuity(unsigned char const* packet) {
  return field_length(packet) > 0 && (packet[flags_at] & 0x80) != 0;
}

bool has_pcr(unsigned char const* packet) {
  return field_length(packet) >= behind_pcr - flags_at && (packet[flags_at] & 0x10) != 0;
}

std::uint64_t pcr_of(unsigned char const* packet) {
  std::uint64_t bits = 0;
  for (int i = pcr_at; i < behind_pcr; ++i) bits = bits << 8 | packet[i];
  return (bits >> 15) * 300 + (bits & 0x1FF);
}

}  // namespace

Reception::Arrival Reception::take(unsigned char const* packet, std::uint64_t offset) {
  Arrival arrival;
  ++counters.packets;
  if ((packet[1] & 0x80) != 0) {  // nothing in it is to be believed
    ++counters.erroneous;
    return arrival;
  }
  if (!has_payload(packet)) {  // the counter stands still
    note_pcr(packet, offset);
    if (is_discontinuity(packet)) counter_ = counter_of(packet);
    return arrival;
  }
  if (repeats(packet)) {
    ++counters.repeated;
    return arrival;
  }
  note_pcr(packet, offset);
  arrival.missing = missing_before(packet);
  arrival.is_readable = !is_scrambled(packet);
  arrival.is_cut = arrival.missing > 0 || !arrival.is_readable;
  counters.missing += static_cast<unsigned int>(arrival.missing);
  if (arrival.missing > 0) ++counters.gaps;
  if (!arrival.is_readable) ++counters.scrambled;
  counter_ = counter_of(packet);
  std::copy_n(packet, ts_packet_size, last_);
  return arrival;
}

void Reception::note_pcr(unsigned char const* packet, std::uint64_t offset) {
  if (!has_pcr(packet)) return;
  counters.last_pcr = pcr_of(packet);
  counters.last_pcr_offset = offset;
  if (counters.pcrs++ > 0) return;
  counters.first_pcr = counters.last_pcr;
  counters.first_pcr_offset = offset;
}

int Reception::missing_before(unsigned char const* packet) const {
  if (!has_continuity_ || counter_ < 0 || is_discontinuity(packet)) return 0;
  return (counter_of(packet) - counter_ - 1) & 0xF;
}

/// A repetition is the packet once more, byte by byte, but that its PCR may have a value of its own.
bool Reception::repeats(unsigned char const* packet) const {
  if (!has_continuity_ || counter_of(packet) != counter_) return false;
  int const same_from = has_pcr(packet) ? behind_pcr : pcr_at;
  return std::equal(packet, packet + pcr_at, last_) &&
         std::equal(packet + same_from, packet + ts_packet_size, last_ + same_from);
}

Reception& Demux::Receptions::add(int pid) {
  Reception& reception = all_.try_emplace(pid, pid).first->second;
  if (0 <= pid && pid < pid_count) of_packets_[static_cast<std::size_t>(pid)] = &reception;
  return reception;
}

Reception* Demux::Receptions::find(int pid) {
  if (0 <= pid && pid < pid_count) return of_packets_[static_cast<std::size_t>(pid)];
  auto const entry = all_.find(pid);
  return entry != all_.end() ? &entry->second : nullptr;
}

}  // namespace sivane
