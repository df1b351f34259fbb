// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/parse_state.h>
#include <sivane/tables/pat.h>

#include <ostream>

namespace sivane {

namespace {
constexpr int entry_size = 4;
constexpr int length_without_entries = 9;
}  // namespace

Pat::program_info::program_info(Reader& reader) : program_number(reader.u16()) {
  reader.skip_bits(3);
  program_map_pid = reader.bits(13);
}

void Pat::program_info::dump_state(std::ostream& os) const {
  os << std::hex;
  dump::line(os, "program_number: ", program_number, 4);
  dump::line(os, "program_map_pid: ", program_map_pid, 4);
}

void Pat::_parse(unsigned char const* body) {
  constexpr Failure parse_error{error::length_error, "Pat parse error"};
  Reader reader = body_reader(body);
  if ((section_length - length_without_entries) % entry_size != 0) {
    fail_or_list(reader, parse_error, reader.left() / entry_size * entry_size);
  }
  program_infos.reserve(program_infos.size() + static_cast<std::size_t>(reader.left() / entry_size));
  while (reader.left() >= entry_size) program_infos.emplace_back(reader);
}

void Pat::_reset() { program_infos.clear(); }

void Pat::_dump_state(std::ostream& os) const { dump::each(os, program_infos); }

Pat::program_info const& Pat::get_program_info(int index) const {
  return program_infos[static_cast<std::size_t>(index)];
}

unsigned int Pat::get_program_info_size() const { return static_cast<unsigned int>(program_infos.size()); }

}  // namespace sivane
