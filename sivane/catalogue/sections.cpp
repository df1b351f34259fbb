// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// From the bytes of a section to the table that is added, with the descriptors that are needed of it alone.
#include <sivane/catalogue/state.h>
#include <sivane/catalogue/table_ids.h>
#include <sivane/tables/tdt.h>
#include <sivane/tables/tot.h>

#include <cstring>

namespace sivane::catalogue {

namespace {

bool has_program_on(Book<ProgramKey, Program> const& programs, int number, int pid) {
  Program const* const program = programs.find({number});
  return program == nullptr || !program->map_pid || *program->map_pid == pid;
}

int extension_of(SubTableKey table) { return static_cast<int>(table >> 32 & 0xFFFF); }

}  // namespace

bool Catalogue::State::is_misplaced(int pid, SectionId const& id) const {
  constexpr int pat_pid = 0x0000, cat_pid = 0x0001;
  if (pid < 0) return false;
  switch (table_id_of(id.table)) {
    case pat_id:
      return pid != pat_pid;
    case cat_id:
      return pid != cat_pid;
    case pmt_id:
      return !has_program_on(programs.programs(), extension_of(id.table), pid);
    default:
      return false;
  }
}

Changes Catalogue::State::add_section(int pid, unsigned char const* section, std::size_t size) {
  if (size == 0) return {};
  int const table_id = *section;
  if (table_id == tdt_id || table_id == tot_id || table_id == rst_id) return parse_short(section, size);
  std::optional<SectionId> const id = section_id(section, size);
  if (!id || is_misplaced(pid, *id)) return {};
  return desk.versions.repeats(*id) ? repeat(*id) : parse_long(section, size);
}

template <class Table>
void Catalogue::State::parse(unsigned char const* section, std::size_t size, std::initializer_list<int> tags,
                             Table& table) {
  ParseOptions parse_options;
  parse_options.build_only(tags);
  table.Parse(section, size, parse_options);
  problems += parse_options.problems.size();
}

template <class Table>
Changes Catalogue::State::parse_and_add(unsigned char const* section, std::size_t size,
                                        std::initializer_list<int> tags) {
  Table table;
  parse(section, size, tags, table);
  return add(table);
}

Changes Catalogue::State::parse_long(unsigned char const* section, std::size_t size) {
  int const table_id = *section;
  if (is_eit(table_id)) return parse_and_add<Eit>(section, size, {0x4D, 0x4E, 0x50, 0x54, 0x55, 0x76});
  switch (table_id) {
    case pat_id:
      return parse_and_add<Pat>(section, size, {});
    case cat_id:
      return parse_and_add<Cat>(section, size, {0x09});
    case pmt_id:
      return parse_and_add<Pmt>(section, size,
                                {0x09, 0x0A, 0x45, 0x46, 0x52, 0x56, 0x59, 0x6A, 0x7A, 0x7B, 0x7C, 0x7F});
    case actual_nit_id:
    case other_nit_id:
      return parse_and_add<Nit>(
          section, size,
          {0x09, 0x40, 0x41, 0x43, 0x44, 0x53, 0x5A, 0x5B, 0x5F, 0x73, 0x79, 0x7F, 0x83, 0x87, 0x88});
    case bat_id:
      return parse_and_add<Bat>(
          section, size,
          {0x09, 0x41, 0x43, 0x44, 0x47, 0x53, 0x5A, 0x5C, 0x5F, 0x73, 0x79, 0x7F, 0x83, 0x87, 0x88});
    case actual_sdt_id:
    case other_sdt_id:
      return parse_and_add<Sdt>(section, size, {0x09, 0x48, 0x53, 0x5D, 0x73});
    default:
      return {};
  }
}

Changes Catalogue::State::parse_short(unsigned char const* section, std::size_t size) {
  if (*section == rst_id) {
    Rst rst;
    parse(section, size, {}, rst);
    return add(rst);
  }
  if (*section == tdt_id) {
    Tdt tdt;
    parse(section, size, {}, tdt);
    return set_time(tdt.UTC_time);
  }
  Tot tot;
  parse(section, size, {0x58}, tot);
  return add(tot);
}

}  // namespace sivane::catalogue
