// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/demux.h>
#include <sivane/foundation/error.h>

#include <array>
#include <new>
#include <sstream>
#include <utility>

#include "count.h"
#include "packets.h"

namespace sivane::fuzzing {

/// A host on any driver. Each hook call takes a byte of the script, which may register, remove, reset, stop
/// or throw; every promise of the hooks is checked.
template <class Driver>
class DemuxHost : public Driver, public GapListener {
 public:
  template <class... Arguments>
  explicit DemuxHost(Input script, Arguments&&... arguments)
      : Driver(std::forward<Arguments>(arguments)...), script_(script) {
    for (int const pid : fuzzed_pids) this->add_psi_handler(pid, 0x00);
    this->set_gap_listener(this);
  }

  /// Calls `drive` and checks what the handlers hold behind it. A hook's own failure is no finding.
  template <class Drive>
  void run(Drive drive) {
    try {
      drive();
    } catch (error const& failure) {
      check(failure.text == "hook", "only the hook throws");
    } catch (std::bad_alloc const&) {
    }
    for (auto const& [pid, handler] : this->pid_handlers) check_pid(*handler);
  }

  int packets_seen = 0;

 protected:
  using PidHandler = Demux::PidHandler;
  using SectionBuffer = Demux::SectionBuffer;

  void on_ts_packet(Demux::TSHeader const& header, unsigned char const* after_header) override {
    check(header.pid >= 0 && header.pid <= 0x1FFF, "a PID has 13 bits");
    after_header_ = after_header;
    ++packets_seen;
    act();
  }
  void on_adaption_field_header_(Demux::AdaptionFieldHeader const&, unsigned char const* payload) override {
    check(payload > after_header_ && payload - after_header_ <= 184, "the field ends in its packet");
    act();
  }
  void on_psi_section(unsigned long id, int size, unsigned char* section) override {
    if (this->reassembly() == Reassembly::every_section) return check_bytes(section, size);
    bool found = false;
    for (auto const& [pid, handler] : this->pid_handlers) {
      for (Demux::PSIFilterHandler const* filter : handler->filter_handlers) {
        if (filter->section != section) continue;
        found = filter->id == id && filter->need() == size && filter->filter_match();
        check_whole(*filter);
      }
    }
    check(found, "the filter that delivers is registered and matches");
    act();
  }
  void on_psi_section(int, int table_id, int section_number, unsigned char const* section) override {
    check(this->section_offset() <= this->packet_offset(), "a section begins in no later packet");
    if (this->reassembly() == Reassembly::every_section) {
      check(section[0] == table_id, "a handler gets its own table id");
      return check_bytes(section, ((section[1] & 0xF) << 8 | section[2]) + 3);
    }
    bool found = false;
    for (auto const& [pid, handler] : this->pid_handlers) {
      auto const entry = handler->psi_handlers.find(table_id);
      if (entry == handler->psi_handlers.end() || entry->second->section != section) continue;
      found = section[0] == table_id && section[6] == section_number;
      check_whole(*entry->second);
    }
    check(found, "the handler that delivers is registered for the section's table id");
    act();
  }

  void on_gap(Gap const& gap) override {
    check(gap.missing >= 1 && gap.missing <= 15, "a gap is counted in four bits");
    act();
  }

 private:
  /// Reads all of a section, so that the address sanitizer sees one that does not lie whole in its packet or
  /// buffer.
  void check_bytes(unsigned char const* section, int size) {
    check(size == ((section[1] & 0xF) << 8 | section[2]) + 3, "a section has the size of its header");
    unsigned int sum = 0;
    for (int i = 0; i < size; ++i) sum += section[i];
    check(sum <= 255u * 4098, "a byte has eight bits");
    act();
  }
  static void check_buffer(SectionBuffer const& buffer) {
    check(buffer.section_size >= 0 && buffer.section_size <= SectionBuffer::capacity, "the buffer holds");
    check(buffer.in_section || buffer.section_size == 0, "an idle buffer is empty");
  }
  static void check_whole(SectionBuffer const& buffer) {
    check_buffer(buffer);
    check(buffer.in_section && buffer.need() <= buffer.section_size, "a delivered section is whole");
  }
  static void check_pid(PidHandler const& handler) {
    bool current_is_known = handler.current == nullptr;
    for (auto const& [table_id, psi] : handler.psi_handlers) {
      check(psi->table_id == table_id, "a handler stands under its table id");
      check_buffer(*psi);
      current_is_known = current_is_known || psi == handler.current;
    }
    check(current_is_known, "the current handler is a registered one");
    for (Demux::PSIFilterHandler const* filter : handler.filter_handlers) check_buffer(*filter);
  }

  void act() {
    static constexpr std::array table_ids = {0x00, 0x02, 0x42, 0xFF};
    unsigned int const action = script_.byte();
    int const pid = fuzzed_pids[action >> 3 & 3];
    int const table_id = table_ids[action >> 5 & 3];
    switch (action & 7) {
      case 1:
        return this->add_psi_handler(pid, table_id);
      case 2:
        return this->remove_psi_handler(pid, table_id);
      case 3:
        return add_filter(pid, table_id);
      case 4:
        return this->stop(7);
      case 5:
        return (action >> 3) == 0 ? this->dump_state(text_) : act_beyond(action >> 3, pid);
      case 6:
        return (action >> 3) == 0 ? this->reset() : out_of_memory(action >> 5, pid);
      case 7:
        throw error("hook");
      default:
        return;
    }
  }
  void act_beyond(unsigned int choice, int pid) {
    if (choice % 4 == 1) this->set_reassembly(Reassembly::every_section);
    if (choice % 4 == 2) this->set_reassembly(Reassembly::first_start);
    if (choice % 4 == 3) this->count(pid);
    this->report_crc_failure(pid);
  }
  /// Registers and removes with memory for so many requests; what fails leaves the hook.
  void out_of_memory(unsigned int requests, int pid) {
    struct Grant {
      explicit Grant(unsigned int count) { testing::grant(static_cast<int>(count)); }
      ~Grant() { testing::grant(-1); }
    } const grant(requests);
    this->remove_psi_handler(pid, 0x00);
    this->add_psi_handler(pid, 0x42);
  }
  void add_filter(int pid, int size) {
    static constexpr unsigned char value[0xFF] = {0x00, 0xB0};
    static constexpr unsigned char mask[0xFF] = {0xFE, 0xF0};
    this->add_psi_handler(pid, value, mask, size, static_cast<unsigned long>(pid));
  }

  Input script_;
  std::ostringstream text_;
  unsigned char const* after_header_ = nullptr;
};

}  // namespace sivane::fuzzing
