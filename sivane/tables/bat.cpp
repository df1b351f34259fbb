// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/bat.h>
#include <sivane/tables/network_body.h>

namespace sivane {

void Bat::Stream_info::dump_state(std::ostream& os) const {
  dump::line(os, "stream_id ", stream_id);
  dump::line(os, "original_network_id ", network_id);
  dump::each(os, get_general_descriptors());
}

void Bat::_parse(unsigned char const* body) { parse_network_body(*this, body_reader(body)); }

void Bat::_reset() {
  ca_descriptors.clear();
  stream_infos.clear();
}

void Bat::_dump_state(std::ostream& os) const { dump::each(os, stream_infos); }

bool Bat::is_valid_syntax_indicator(int indicator) const { return indicator == 1; }

}  // namespace sivane
