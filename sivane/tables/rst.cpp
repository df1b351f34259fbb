// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/rst.h>

namespace sivane {

Rst::Status::Status(unsigned char const* data, int& size)
    : Status(read_record<Status>(Reader::trusting(data), size)) {}

Rst::Status::Status(Reader& reader) {
  transport_stream_id = reader.u16();
  original_network_id = reader.u16();
  service_id = reader.u16();
  event_id = reader.u16();
  reader.skip_bits(5);
  running_status = reader.bits(3);
}

void Rst::Status::dump_state(std::ostream& os) const {
  dump::line(os, "transport_stream_id: ", transport_stream_id);
  dump::line(os, "original_network_id: ", original_network_id);
  dump::line(os, "service_id: ", service_id);
  dump::line(os, "event_id: ", event_id);
  dump::line(os, "running_status: ", running_status);
}

void Rst::_parse(unsigned char const* body) {
  Reader reader = body_reader(body, start_end_mismatch);
  reader.walk(status_infos, start_end_mismatch);
}

void Rst::_reset() { status_infos.clear(); }

void Rst::_dump_state(std::ostream& os) const {
  PsiBase::_dump_state(os);
  dump::each(os, status_infos);
}

bool Rst::is_syntax_indicator_valid(int indicator) const { return indicator == 0; }

}  // namespace sivane
