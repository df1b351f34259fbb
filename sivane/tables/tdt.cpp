// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/tables/tdt.h>

#include <ostream>

namespace sivane {

void Tdt::_parse(unsigned char const* body) {
  Reader reader = body_reader(body);
  UTC_time = DateTime(reader);
}

char const* Tdt::get_table_id_text() const { return "time_date_section"; }

void Tdt::_reset() {}

void Tdt::_dump_state(std::ostream& os) const {
  PsiBase::_dump_state(os);
  os << "UTC_time: " << UTC_time << std::endl;
}

bool Tdt::is_valid_tablesid() const { return table_id == 0x70; }

bool Tdt::is_syntax_indicator_valid(int indicator) const { return indicator == 0; }

}  // namespace sivane
