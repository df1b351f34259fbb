// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/entry.h>
#include <sivane/tables/tot.h>

#include <ostream>

namespace sivane {

void Tot::_parse(unsigned char const* body) {
  Reader reader = body_reader(body);
  UTC_time = DateTime(reader);
  int const descriptors_loop_length = length_field(reader);
  parse_descriptors(reader, descriptors_loop_length, start_end_mismatch, LoopEnd::exact);
  crc32 = reader.u32();
}

void Tot::_reset() { clear_general_descriptors(); }

void Tot::_dump_state(std::ostream& os) const {
  PsiBase::_dump_state(os);
  dump::line(os, "UTC_time: ", UTC_time);
  dump::line(os, "crc32: ", crc32);
}

bool Tot::is_syntax_indicator_valid(int indicator) const { return indicator == 0; }

}  // namespace sivane
