// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/pid_watch.h"

#include <sivane/demux/packet.h>

#include <cstring>

namespace inspect {

namespace {

constexpr int null_pid = 0x1FFF;

// Where the fields of a packet stand (ISO/IEC 13818-1, 2.4.3.2 and 2.4.3.4).
constexpr int flags_at = 5;
constexpr int pcr_at = 6;
constexpr int behind_pcr = 12;

int pid_of(unsigned char const* packet) { return (packet[1] & 0x1F) << 8 | packet[2]; }
bool is_erroneous(unsigned char const* packet) { return (packet[1] & 0x80) != 0; }
bool is_unit_start(unsigned char const* packet) { return (packet[1] & 0x40) != 0; }
bool is_scrambled(unsigned char const* packet) { return (packet[3] & 0xC0) != 0; }
bool has_payload(unsigned char const* packet) { return (packet[3] & 0x10) != 0; }
int field_length(unsigned char const* packet) { return (packet[3] & 0x20) != 0 ? packet[4] : 0; }
bool is_discontinuity(unsigned char const* packet) {
  return field_length(packet) > 0 && (packet[flags_at] & 0x80) != 0;
}
bool has_pcr(unsigned char const* packet) {
  return field_length(packet) >= behind_pcr - flags_at && (packet[flags_at] & 0x10) != 0;
}

/// Bytes of it that a repetition has as well: its PCR may have a value of its own.
std::uint64_t content_of(unsigned char const* packet) {
  std::uint64_t sum = 0;
  for (int const at : {behind_pcr, sivane::ts_packet_size - 8}) {
    std::uint64_t bytes;
    std::memcpy(&bytes, packet + at, sizeof bytes);
    sum = sum * 0x9E3779B97F4A7C15 + bytes;
  }
  return sum;
}

/// Whether a PES packet with a PTS begins in the packet (ISO/IEC 13818-1, 2.4.3.6).
bool has_time_stamp(unsigned char const* packet) {
  constexpr int header_size = 14;  // up to the PTS and with it
  int const at = 4 + ((packet[3] & 0x20) != 0 ? 1 + packet[4] : 0);
  if (at + header_size > sivane::ts_packet_size) return false;
  unsigned char const* const pes = packet + at;
  return pes[0] == 0 && pes[1] == 0 && pes[2] == 1 && (pes[6] & 0xC0) == 0x80 && (pes[7] & 0x80) != 0;
}

}  // namespace

bool PidWatch::take(unsigned char const* packet, Place const& place) {
  int const pid = pid_of(packet);
  Pid& state = pids_[index(pid)];
  note_packet(state, pid, place);
  if (is_erroneous(packet)) {  // nothing in it is to be believed
    note(Observation::Kind::transport_error, pid, place);
    state.counter = no_counter;
    return false;
  }
  if (pid == null_pid) return false;
  if (has_pcr(packet)) note_pcr(pid, packet, place);
  if (!has_payload(packet)) {
    if (is_discontinuity(packet)) state.counter = no_counter;
    return false;
  }
  note_counter(state, pid, packet, place);
  if (is_scrambled(packet)) {
    note_scrambling(state, pid, place);
  } else if (state.has_time_stamps && is_unit_start(packet) && has_time_stamp(packet)) {
    note(Observation::Kind::pts, pid, place);
  }
  return state.has_sections;
}

void PidWatch::note_packet(Pid& state, int pid, Place const& place) {
  if (state.packets++ == 0) {
    of_span_.push_back(pid);
    state.first_packet = place.packet;
    state.first_offset = place.offset;
  }
  state.last_offset = place.offset;
}

/// Each packet where sections are looked for, else the first one.
void PidWatch::note_scrambling(Pid& state, int pid, Place const& place) {
  if (state.has_sections || !state.was_scrambled) note(Observation::Kind::scrambled, pid, place);
  state.was_scrambled = true;
}

void PidWatch::note_counter(Pid& state, int pid, unsigned char const* packet, Place const& place) {
  int const counter = packet[3] & 0xF;
  std::uint64_t const content = content_of(packet);
  bool const is_known = state.counter != no_counter && !is_discontinuity(packet);
  bool const is_repetition = is_known && counter == state.counter && content == state.content;
  state.repetitions = is_repetition ? state.repetitions + 1 : 0;
  if (state.repetitions > 1) note(Observation::Kind::continuity, pid, place);
  if (is_known && !is_repetition && counter != ((state.counter + 1) & 0xF)) {
    int const missing = (counter - state.counter - 1) & 0xF;
    note(Observation::Kind::continuity, pid, place, static_cast<std::uint64_t>(missing));
  }
  state.counter = counter;
  state.content = content;
}

void PidWatch::note_pcr(int pid, unsigned char const* packet, Place const& place) {
  std::uint64_t bits = 0;
  for (int i = pcr_at; i < behind_pcr; ++i) bits = bits << 8 | packet[i];
  note(Observation::Kind::pcr, pid, place, (bits >> 15) * 300 + (bits & 0x1FF));
  seen_.back().is_announced = is_discontinuity(packet);
}

std::vector<PidWatch::Span> PidWatch::take_spans() {
  std::vector<Span> spans;
  for (int const pid : of_span_) {
    Pid& state = pids_[index(pid)];
    spans.push_back({pid, state.packets, state.first_packet, state.first_offset, state.last_offset});
    state.packets = 0;
  }
  of_span_.clear();
  return spans;
}

}  // namespace inspect
