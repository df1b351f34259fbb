// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/error.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>
#include <sivane/tables/registrations.h>
#include <sivane/tables/table_ids.h>

#include <initializer_list>
#include <string_view>

namespace sivane {

namespace {

constexpr int private_sections = 0x05;  // stream_type
constexpr int first_dsm_cc = 0x0A;
constexpr int last_dsm_cc = 0x0D;

struct TableClass {
  std::string_view name;
  std::initializer_list<TableIds> ids;
};

/// Asks for all table ids of a class.
void append(std::vector<Registration>& registrations, int pid, std::string_view class_name) {
  auto const append_ids = [&](TableClass const& row) {
    if (row.name != class_name) return;
    for (TableIds const& of : row.ids) {
      for (int id = of.first; id <= of.last; ++id) registrations.push_back({pid, id});
    }
  };
#define SIVANE_TABLE_ROW(Class, Frame, other_text, ...) append_ids({#Class, {__VA_ARGS__}});
#include <sivane/tables/table_rows.inc>
}

std::vector<Registration> named_by(Pat const& pat) {
  std::vector<Registration> named;
  for (auto const& program : pat.program_infos) {
    if (program.program_number != 0) append(named, program.program_map_pid, "Pmt");
  }
  return named;
}

std::vector<Registration> named_by(Pmt const& pmt) {
  std::vector<Registration> named;
  for (auto const& stream : pmt.stream_infos) {
    bool const is_dsm_cc = stream.stream_type >= first_dsm_cc && stream.stream_type <= last_dsm_cc;
    if (stream.stream_type == private_sections) append(named, stream.elementary_pid, "Ait");
    if (is_dsm_cc) append(named, stream.elementary_pid, "DsmCC");
  }
  return named;
}

template <class Table>
std::vector<Registration> named_by(unsigned char const* section, std::size_t size) try {
  Table table;
  table.Parse(section, size);
  return named_by(table);
} catch (error const&) {
  return {};
}

}  // namespace

std::vector<Registration> usual_registrations() {
  std::vector<Registration> usual;
  append(usual, 0x0000, "Pat");
  append(usual, 0x0001, "Cat");
  append(usual, 0x0010, "Nit");
  append(usual, 0x0011, "Bat");
  append(usual, 0x0011, "Sdt");
  append(usual, 0x0012, "Eit");
  append(usual, 0x0014, "Tdt");
  append(usual, 0x0014, "Tot");
  append(usual, 0x0013, "Rst");
  return usual;
}

std::vector<Registration> registrations_named_by(unsigned char const* section, std::size_t size) {
  if (size == 0) return {};
  if (section[0] == 0x00) return named_by<Pat>(section, size);
  if (section[0] == 0x02) return named_by<Pmt>(section, size);
  return {};
}

}  // namespace sivane
