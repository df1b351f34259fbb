// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/demux.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "heap_block.h"
#include "packet_writer.h"

namespace sivane::testing {

using Sections = std::vector<Bytes>;
using Filtered = std::vector<std::pair<unsigned long, Bytes>>;

/// Notes every call of a hook, as text with a semicolon behind it, and the sections with their bytes.
template <class Driver>
class RecordingHost : public Driver {
 public:
  using Driver::Driver;
  using Driver::stop;

  std::string calls;
  Sections sections;                                // of the four-argument hook
  Filtered filtered;                                // of the three-argument hook
  std::function<void(std::string const&)> on_call;  // what a hook does besides; it gets the text of its call
  unsigned char const* base = nullptr;              // where it is set, addresses are noted as offsets from it

  void forget() {
    calls.clear();
    sections.clear();
    filtered.clear();
  }

 protected:
  void on_raw_ts_packet(unsigned char const* packet) override { note("raw", packet); }
  void on_ts_packet(Demux::TSHeader const& header, unsigned char const* after_header) override {
    note("ts " + std::to_string(header.pid), after_header);
  }
  void on_adaption_field_header_(Demux::AdaptionFieldHeader const&, unsigned char const* after) override {
    note("field", after);
  }
  void on_psi_section(unsigned long id, int size, unsigned char* section) override {
    filtered.emplace_back(id, Bytes(section, section + size));
    note("filter");
    section[0] = 0xEE;  // every filter has its own copy
  }
  void on_psi_section(int pid, int table_id, int number, unsigned char const* section) override {
    sections.emplace_back(section, section + section_size(section));
    note("section " + std::to_string(pid) + ' ' + std::to_string(table_id) + ' ' + std::to_string(number));
  }

 private:
  void note(std::string const& call, unsigned char const* address = nullptr) {
    bool const has_offset = address != nullptr && base != nullptr;
    calls += call + (has_offset ? " @" + std::to_string(address - base) : "") + ';';
    if (on_call) on_call(call);
  }
};

/// The push driver as a host has it, with whole streams as input.
class PushHost : public RecordingHost<DemuxPush> {
 public:
  /// Pushes a copy that lies in a block of exactly its size.
  int push(Bytes const& stream) {
    HeapBlock const block(stream);
    base = block.data();
    return push_data(block.data(), block.size());
  }
  void add_filter(int pid, unsigned long id) { add_psi_handler(pid, nullptr, nullptr, 0, id); }
  PidHandler& of_pid(int pid) { return *pid_handlers.at(pid); }
  PSIHandler& of_table(int pid, int table_id) { return *of_pid(pid).psi_handlers.at(table_id); }
};

/// A packet whose payload is exactly these bytes; an adaptation field takes what room is left.
inline Bytes exact_packet(int pid, bool start, Bytes const& payload) {
  int const adaptation = payload.size() == 184 ? -1 : 183 - static_cast<int>(payload.size());
  return make_packet({.pid = pid, .start = start, .adaptation = adaptation, .payload = payload});
}

/// A packet that begins with a section; stuffing takes what room is left.
inline Bytes start_packet(int pid, Bytes const& section) {
  return make_packet({.pid = pid, .start = true, .payload = Bytes{0} + section});
}

/// A short-form section of `size` bytes in all, filled with a pattern that depends on its table id.
inline Bytes patterned_section(int table_id, int size) {
  Bytes body;
  for (int i = 3; i < size; ++i) body.push_back(static_cast<unsigned char>(i * 7 + table_id));
  return make_short_section(table_id, body);
}

/// Bytes `from` up to `to` of a section or stream.
inline Bytes part(Bytes const& bytes, int from, int to) { return {bytes.begin() + from, bytes.begin() + to}; }

}  // namespace sivane::testing
