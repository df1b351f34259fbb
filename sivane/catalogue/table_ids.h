// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the kinds of tables that a catalogue takes, by table_id (ETSI EN 300 468, table 2).
#pragma once

namespace sivane::catalogue {

inline constexpr int pat_id = 0x00, cat_id = 0x01, pmt_id = 0x02;
inline constexpr int actual_nit_id = 0x40, other_nit_id = 0x41, bat_id = 0x4A;
inline constexpr int actual_sdt_id = 0x42, other_sdt_id = 0x46;
inline constexpr int first_eit_id = 0x4E, first_schedule_id = 0x50, last_eit_id = 0x6F;
inline constexpr int tdt_id = 0x70, rst_id = 0x71, tot_id = 0x73;

constexpr bool is_sdt(int table_id) { return table_id == actual_sdt_id || table_id == other_sdt_id; }
constexpr bool is_eit(int table_id) { return table_id >= first_eit_id && table_id <= last_eit_id; }
constexpr bool is_schedule(int table_id) { return table_id >= first_schedule_id && table_id <= last_eit_id; }

}  // namespace sivane::catalogue
