// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/followed_tables.h"

#include <sivane/sivane.h>

#include "tables/table_classes.h"

namespace inspect {

namespace {

constexpr int private_sections = 0x05;
constexpr int first_dsm_cc = 0x0A;
constexpr int last_dsm_cc = 0x0D;

void append(std::vector<Handle>& handles, int pid, std::string_view class_name) {
  for (int const table_id : find_class(class_name)->table_ids) handles.push_back({pid, table_id});
}

std::vector<Handle> named_by(sivane::Pat const& pat) {
  std::vector<Handle> handles;
  for (auto const& program : pat.program_infos) {
    if (program.program_number != 0) append(handles, program.program_map_pid, "Pmt");
  }
  return handles;
}

std::vector<Handle> named_by(sivane::Pmt const& pmt) {
  std::vector<Handle> handles;
  for (auto const& stream : pmt.stream_infos) {
    bool const is_dsm_cc = stream.stream_type >= first_dsm_cc && stream.stream_type <= last_dsm_cc;
    if (stream.stream_type == private_sections) append(handles, stream.elementary_pid, "Ait");
    if (is_dsm_cc) append(handles, stream.elementary_pid, "DsmCC");
  }
  return handles;
}

template <class Table>
std::vector<Handle> named_by(std::span<unsigned char const> section) try {
  Table table;
  table.Parse(section.data(), section.size());
  return named_by(table);
} catch (sivane::error const&) {
  return {};  // the command has met the same failure, and reported it if it looks into sections
}

}  // namespace

std::vector<Handle> usual_handles() {
  std::vector<Handle> handles;
  for (TableClass const& row : table_classes()) {
    if (row.usual_pid) append(handles, *row.usual_pid, row.name);
  }
  return handles;
}

std::vector<Handle> handles_named_by(std::span<unsigned char const> section) {
  if (section[0] == 0x00) return named_by<sivane::Pat>(section);
  if (section[0] == 0x02) return named_by<sivane::Pmt>(section);
  return {};
}

}  // namespace inspect
