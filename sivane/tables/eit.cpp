// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/entry.h>

#include <ostream>

namespace sivane {

namespace {

constexpr int entry_head_size = 12;
}  // namespace

Eit::EventInfo::EventInfo(unsigned char const* data, int& size) {
  Reader reader = entry_reader(data, entry_head_size, start_end_mismatch);
  *this = EventInfo(reader);
  size = reader.consumed();
}

Eit::EventInfo::EventInfo(Reader& reader) : event_id(reader.u16()), start_time(reader), duration(reader) {
  running_status = reader.bits(3);
  free_CA_mode = reader.bits(1);
  descriptors_length = reader.bits(12);
  parse_descriptors(reader, descriptors_length, start_end_mismatch);
}

void Eit::EventInfo::dump_state(std::ostream& os) const {
  os << std::hex;
  dump::line(os, "event_id: ", event_id, 4);
  dump::line(os, "running_status: ", running_status);
  dump::line(os, "free_CA_mode: ", free_CA_mode);
  dump::line(os, "descriptors_length: ", descriptors_length);
  dump::line(os, "start_time: ", start_time);
  dump::line(os, "duration: ", duration);
}

void Eit::_parse(unsigned char const* body) {
  Reader reader = body_reader(body, start_end_mismatch);
  transport_stream_id = reader.u16();
  original_network_id = reader.u16();
  segment_last_section_number = reader.u8();
  last_table_id = reader.u8();
  reader.walk(event_infos, start_end_mismatch);
}

char const* Eit::get_table_id_text(int table_id) {
  Eit of_this_id;
  of_this_id.table_id = table_id;
  return of_this_id.get_table_id_text();
}

void Eit::_reset() { event_infos.clear(); }

void Eit::_dump_state(std::ostream& os) const {
  dump::line(os, "service_id: ", context_id);
  dump::line(os, "transport_stream_id: ", transport_stream_id);
  dump::line(os, "original_network_id: ", original_network_id);
  dump::line(os, "segment_last_section_number: ", segment_last_section_number);
  dump::line(os, "last_table_id: ", last_table_id);
  dump::each(os, event_infos);
}

bool Eit::is_valid_syntax_indicator(int indicator) const { return indicator == 1; }

}  // namespace sivane
