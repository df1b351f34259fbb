// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "stream_reader.h"

#include <sivane/foundation/error.h>

#include <string>

namespace sivane::python {

StreamReader::Host::Host(Selection const& selection, SectionSink& sink)
    : sink_(sink), follows_tables_(!selection.registrations) {
  add(selection.registrations.value_or(usual_registrations()));
  if (selection.every_section) set_reassembly(Reassembly::every_section);
}

void StreamReader::Host::on_psi_section(int pid, int, int, unsigned char const* section) {
  auto const size = static_cast<std::size_t>(section_size(section));
  sink_.take({pid, section, size, section_offset(), numbers.at(section_offset())});
  if (follows_tables_) add(registrations_named_by(section, size));
}

void StreamReader::Host::add(std::vector<Registration> const& registrations) {
  for (Registration const& wanted : registrations) add_psi_handler(wanted.pid, wanted.table_id);
}

StreamReader::StreamReader(Selection const& selection, SectionSink& sink) : host_(selection, sink) {}

void StreamReader::on_packets(PacketRun const& run) {
  host_.numbers.add(run);
  host_.push_packets(run);
}

void StreamReader::finish() {
  std::uint64_t const size = next_offset();
  flush();
  if (packets == 0) {
    throw error(("no transport stream: no packet was found in " + std::to_string(size) + " bytes").c_str());
  }
}

}  // namespace sivane::python
