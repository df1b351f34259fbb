// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/measures.h"

#include <iterator>

namespace inspect {

namespace {

using M = Measure;

constexpr MeasureRow rows[] = {
    {M::ts_sync_loss, "TS_sync_loss", 1, "1.1", Need::nothing,
     "lost by 2 wrong sync bytes in a row, gained by 5 right ones"},
    {M::sync_byte, "Sync_byte_error", 1, "1.2", Need::nothing,
     "each sync byte is 0x47 (those that lose the sync count there)"},
    {M::pat, "PAT_error_2", 1, "1.3.a", Need::time_in_part,
     "PAT every 0.5 s; nothing else and nothing scrambled on PID 0x0000"},
    {M::continuity_count, "Continuity_count_error", 1, "1.4", Need::nothing,
     "no packet lost, out of order, or more than twice"},
    {M::pmt, "PMT_error_2", 1, "1.5.a", Need::time_in_part, "PMT of each program every 0.5 s, not scrambled"},
    {M::pid, "PID_error", 1, "1.6", Need::time,
     "video, audio and PCR that a program names: a packet every 5 s"},
    {M::transport, "Transport_error", 2, "2.1", Need::nothing, "no transport_error_indicator"},
    {M::crc, "CRC_error", 2, "2.2", Need::nothing, "right CRC of PAT, CAT, PMT, NIT, BAT, SDT, EIT, TOT"},
    {M::pcr_repetition, "PCR_repetition_error", 2, "2.3a", Need::time, "PCR every 100 ms"},
    {M::pcr_discontinuity, "PCR_discontinuity_indicator_error", 2, "2.3b", Need::time,
     "from PCR to PCR 0 to 100 ms, or the time that passed, unless a jump is announced"},
    {M::pcr_accuracy, "PCR_accuracy_error", 2, "2.4", Need::more,
     "wants the arrival of each packet to better than 500 ns"},
    {M::pts, "PTS_error", 2, "2.5", Need::time, "PTS every 0.7 s in video and audio that is not scrambled"},
    {M::cat, "CAT_error", 2, "2.6", Need::time_in_part,
     "a CAT within 2 s where packets are scrambled; nothing else on PID 0x0001"},
    {M::nit_actual, "NIT_actual_error", 3, "3.1.a", Need::time_in_part,
     "NIT actual every 10 s, 25 ms apart; only NIT and stuffing on PID 0x0010"},
    {M::nit_other, "NIT_other_error", 3, "3.1.b", Need::time, "each section of a NIT other every 10 s"},
    {M::si_repetition, "SI_repetition_error", 3, "3.2", Need::time,
     "BAT 10 s, TOT 30 s, EIT schedule 10 s in its first 8 days, later 30 s (terrestrial, by first day and "
     "later: actual 10 s, 30 s, other 60 s, 300 s); sections of a table without a row of its own 25 ms "
     "apart"},
    {M::buffer, "Buffer_error", 3, "3.3", Need::more, "wants a model of the buffers of a decoder"},
    {M::unreferenced_pid, "Unreferenced_PID", 3, "3.4", Need::time_in_part,
     "named by a PAT, CAT or PMT within 0.5 s; PIDs 0x0000 to 0x001f and 0x1fff aside"},
    {M::sdt_actual, "SDT_actual_error", 3, "3.5.a", Need::time_in_part,
     "SDT actual every 2 s, 25 ms apart; only SDT, BAT and stuffing on PID 0x0011"},
    {M::sdt_other, "SDT_other_error", 3, "3.5.b", Need::time, "each section of an SDT other every 10 s"},
    {M::eit_actual, "EIT_actual_error", 3, "3.6.a", Need::time_in_part,
     "EIT p/f actual, sections 0 and 1 of each service that the SDT says has it, every 2 s, 25 ms apart; "
     "only EIT and stuffing on PID 0x0012"},
    {M::eit_other, "EIT_other_error", 3, "3.6.b", Need::time,
     "EIT p/f other, sections 0 and 1 every 10 s (terrestrial: 20 s)"},
    {M::eit_pf, "EIT_PF_error", 3, "3.6.c", Need::nothing, "of EIT p/f both section 0 and section 1"},
    {M::rst, "RST_error", 3, "3.7", Need::time_in_part,
     "RST 25 ms apart; only RST and stuffing on PID 0x0013"},
    {M::tdt, "TDT_error", 3, "3.8", Need::time_in_part,
     "TDT every 30 s, 25 ms apart; only TDT, TOT and stuffing on PID 0x0014"},
    {M::empty_buffer, "Empty_buffer_error", 3, "3.9", Need::more,
     "wants a model of the buffers of a decoder"},
    {M::data_delay, "Data_delay_error", 3, "3.10", Need::more, "wants a model of the buffers of a decoder"},
    {M::changed_content, "Changed_content", 0, "", Need::nothing, "what changes has a new version"},
    {M::version_back, "Version_back", 0, "", Need::nothing, "versions go forward, 31 to 0 included"},
    {M::missing_section, "Missing_section", 0, "", Need::nothing,
     "all sections up to the last one, once those that come have come three times"},
    {M::missing_segment, "Missing_segment", 0, "", Need::nothing,
     "all segments of a schedule from the first one that came on"},
    {M::missing_table, "Missing_table", 0, "", Need::nothing,
     "all tables of a schedule from the first one that came to its last_table_id"},
    {M::failed_section, "Failed_section", 0, "", Need::nothing, "each section can be read"},
    {M::failed_descriptor, "Failed_descriptor", 0, "", Need::nothing, "each descriptor can be read"},
    {M::missing_pid, "Missing_PID", 0, "", Need::nothing, "a packet of each PID that a PAT or PMT names"},
};

constexpr bool are_in_order() {
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    if (static_cast<std::size_t>(rows[i].measure) != i) return false;
  }
  return std::size(rows) == static_cast<std::size_t>(M::missing_pid) + 1;
}
static_assert(are_in_order());

}  // namespace

std::span<MeasureRow const> measure_list() { return rows; }

MeasureRow const& row_of(Measure measure) { return rows[static_cast<std::size_t>(measure)]; }

}  // namespace inspect
