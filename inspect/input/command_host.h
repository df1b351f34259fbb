// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/demux.h>
#include <sivane/tables/registrations.h>

#include <utility>

#include "commands/command.h"
#include "input/handle.h"
#include "options.h"

namespace inspect {

/// A driver of the library that gives the sections of the handles to the command or, where there are none,
/// those of every table that has a class: further PIDs are registered as the tables name them.
template <class Driver>
class CommandHost : public Driver {
 public:
  template <class... Arguments>
  CommandHost(Options const& options, Command& command, Arguments&&... arguments)
      : Driver(std::forward<Arguments>(arguments)...),
        command_(command),
        follows_tables_(options.handles.empty()) {
    add(follows_tables_ ? sivane::usual_registrations() : options.handles);
    if (options.input == Input::ts) this->set_reassembly(sivane::Reassembly::every_section);
  }

 protected:
  using Driver::on_psi_section;

  /// Where the section began; -1 where the input has no places.
  virtual long long offset() const { return static_cast<long long>(this->section_offset()); }

  void on_psi_section(int pid, int, int, unsigned char const* section) override {
    std::span<unsigned char const> const bytes(section, claimed_size(section));
    bool const had_wrong_crc = !command_.take({.bytes = bytes, .pid = pid, .offset = offset()});
    if (had_wrong_crc) this->report_crc_failure(pid);
    if (follows_tables_) add(sivane::registrations_named_by(section, bytes.size()));
  }

 private:
  void add(std::vector<Handle> const& handles) {
    for (Handle const& handle : handles) this->add_psi_handler(handle.pid, handle.table_id);
  }

  Command& command_;
  bool follows_tables_;
};

}  // namespace inspect
