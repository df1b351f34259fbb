// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/tdt.h>

#include <ostream>

namespace sivane {

void Tdt::_parse(unsigned char const* body) {
  Reader reader = body_reader(body);
  UTC_time = DateTime(reader);
}

void Tdt::_reset() {}

void Tdt::_dump_state(std::ostream& os) const {
  PsiBase::_dump_state(os);
  dump::line(os, "UTC_time: ", UTC_time);
}

bool Tdt::is_syntax_indicator_valid(int indicator) const { return indicator == 0; }

}  // namespace sivane
