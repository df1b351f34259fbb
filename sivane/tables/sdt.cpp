// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/entry.h>
#include <sivane/tables/sdt.h>

namespace sivane {

namespace {

constexpr int entry_head_size = 5;
constexpr int reserved_byte = 8;

}  // namespace

Sdt::Service_info::Service_info(unsigned char const* data, int& size) {
  Reader reader = Reader::within(data, size, start_end_mismatch);
  *this = Service_info(reader);
  size = reader.consumed();
}

Sdt::Service_info::Service_info(Reader& reader) {
  reader.need(entry_head_size, too_little_data);
  service_id = reader.u16();
  reader.skip_bits(6);
  EIT_schedule_flag = reader.bits(1);
  EIT_present_following_flag = reader.bits(1);
  running_status = reader.bits(3);
  free_CA_mode = reader.bits(1);
  int const descriptors_loop_length = reader.bits(12);
  parse_descriptors(reader, descriptors_loop_length, start_end_mismatch);
}

void Sdt::Service_info::dump_state(std::ostream& os) const {
  dump::line(os, "service_id ", service_id);
  dump::line(os, "EIT_schedule_flag ", EIT_schedule_flag);
  dump::line(os, "EIT_present_following_flag ", EIT_present_following_flag);
  dump::line(os, "running_status ", running_status);
  dump::line(os, "free_CA_mode ", free_CA_mode);
  dump::each(os, get_general_descriptors());
  dump::each(os, get_service_descriptors());
}

void Sdt::_parse(unsigned char const* body) {
  Reader reader = body_reader(body, start_end_mismatch);
  original_network_id = reader.u16();
  reader.skip_bits(reserved_byte);
  reader.walk(service_infos, start_end_mismatch);
}

void Sdt::_reset() { service_infos.clear(); }

void Sdt::_dump_state(std::ostream& os) const {
  dump::line(os, "original_network_id ", original_network_id);
  dump::each(os, service_infos);
}

bool Sdt::is_valid_syntax_indicator(int indicator) const { return indicator == 1; }

}  // namespace sivane
