// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/table_rules.h"

#include <algorithm>

#include "check/sub_table.h"

namespace inspect {

namespace {

using M = Measure;

constexpr std::int64_t second = ticks_of_second;

constexpr TableRule rules[] = {
    {0x00, 0x00, 0x0000, M::pat, false, false, second / 2},
    {0x02, 0x02, -1, M::pmt, true, false, second / 2},
    {0x40, 0x40, 0x0010, M::nit_actual, false, true, 10 * second},
    {0x41, 0x41, 0x0010, M::nit_other, true, true, 10 * second},
    {0x42, 0x42, 0x0011, M::sdt_actual, false, true, 2 * second},
    {0x46, 0x46, 0x0011, M::sdt_other, true, true, 10 * second},
    {0x4A, 0x4A, 0x0011, M::si_repetition, true, true, 10 * second},
    {0x4E, 0x4E, 0x0012, M::eit_actual, true, true, 2 * second},
    {0x4F, 0x4F, 0x0012, M::eit_other, true, true, 10 * second},
    {first_schedule, last_schedule, 0x0012, M::si_repetition, true, true, 30 * second},
    {0x70, 0x70, 0x0014, M::tdt, false, true, 30 * second},
    {0x71, 0x71, 0x0013, M::rst, false, true, 0},
    {0x73, 0x73, 0x0014, M::si_repetition, false, true, 30 * second},
};

struct Allowance {
  int pid, first_table, last_table;
  Measure measure;
};

constexpr int stuffing_table = 0x72;
constexpr int first_pid_with_stuffing = 0x10;

constexpr Allowance allowances[] = {
    {0x00, 0x00, 0x00, M::pat},        {0x01, 0x01, 0x01, M::cat},        {0x10, 0x40, 0x41, M::nit_actual},
    {0x11, 0x42, 0x42, M::sdt_actual}, {0x11, 0x46, 0x46, M::sdt_actual}, {0x11, 0x4A, 0x4A, M::sdt_actual},
    {0x12, 0x4E, 0x6F, M::eit_actual}, {0x13, 0x71, 0x71, M::rst},        {0x14, 0x70, 0x70, M::tdt},
    {0x14, 0x73, 0x73, M::tdt},
};

constexpr int sections_of_segment = 8, segments_of_day = 8;
constexpr int tables_of_first_days = 2;  // four days each

/// By satellite and cable the first eight days have a limit, terrestrially the first day.
std::int64_t longest_of_schedule(int table_id, int number, bool is_terrestrial) {
  int const place = (table_id - first_schedule) % 16;
  bool const is_other = table_id >= first_schedule + 16;
  if (!is_terrestrial) return (place < tables_of_first_days ? 10 : 30) * second;
  bool const is_first_day = place == 0 && number < sections_of_segment * segments_of_day;
  if (is_other) return (is_first_day ? 60 : 300) * second;
  return (is_first_day ? 10 : 30) * second;
}

}  // namespace

TableRule const* rule_of(int pid, int table_id) {
  auto const found = std::ranges::find_if(rules, [=](TableRule const& rule) {
    return table_id >= rule.first_table && table_id <= rule.last_table && (rule.pid < 0 || rule.pid == pid);
  });
  return found != std::end(rules) ? found : nullptr;
}

Misplacement misplacement_of(int pid, int table_id) {
  Misplacement result{false, M::pat};
  for (Allowance const& row : allowances) {
    if (row.pid != pid) continue;
    if (table_id >= row.first_table && table_id <= row.last_table) return {false, row.measure};
    result = {true, row.measure};
  }
  if (table_id == stuffing_table && pid >= first_pid_with_stuffing) result.is_misplaced = false;
  return result;
}

std::int64_t longest_interval(TableRule const& rule, int table_id, int number, bool is_terrestrial) {
  if (is_schedule(table_id)) return longest_of_schedule(table_id, number, is_terrestrial);
  bool const is_other_event = rule.measure == M::eit_other;
  return is_other_event && is_terrestrial ? 2 * rule.longest : rule.longest;
}

}  // namespace inspect
