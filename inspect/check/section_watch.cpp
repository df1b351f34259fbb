// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/section_watch.h"

#include <sivane/tables/section.h>

#include <string_view>

namespace inspect {

namespace {

constexpr int smallest_long = 12;  // header and CRC
constexpr int smallest_of_eit = 14 + 4;
constexpr int tot = 0x73;  // short, and has a CRC all the same (ETSI EN 300 468, 5.2.6)

bool is_eit(int table_id) { return table_id >= 0x4E && table_id <= 0x6F; }
bool is_sdt(int table_id) { return table_id == 0x42 || table_id == 0x46; }
int word(unsigned char const* at) { return at[0] << 8 | at[1]; }

/// The frame that all tables have, without what is in it.
class Frame final : public sivane::PsiTableBase {
 public:
  char const* get_table_id_text() const override { return ""; }
  void _reset() override {}
  void _dump_state(std::ostream&) const override {}
  void _parse(void*) override {}
  void _parse(unsigned char const*) override {}
  bool _save_section(void*, void*) const override { return true; }
  bool is_valid_tablesid() const override { return true; }
};

/// The library looks at the CRC before anything else.
bool has_right_crc(unsigned char const* section, int size) try {
  Frame().Parse(section, static_cast<std::size_t>(size));
  return true;
} catch (sivane::error const& failure) {
  return std::string_view(failure.what()) != "crc error";
}

}  // namespace

SectionWatch::SectionWatch(std::vector<Observation>& seen) : seen_(seen) {
  set_reassembly(sivane::Reassembly::every_section);
}

void SectionWatch::take(unsigned char const* packet, Place const& place) {
  place_ = place;
  push_packets({packet, 1, sivane::ts_packet_size, place.offset});
}

void SectionWatch::on_psi_section(unsigned long id, int size, unsigned char* section) {
  int const pid = static_cast<int>(id);
  bool const is_long = (section[1] & 0x80) != 0;
  if ((is_long || section[0] == tot) && !has_right_crc(section, size)) {
    seen_.push_back({Observation::Kind::wrong_crc, pid, place_, section[0]});
    return;
  }
  Observation observation{Observation::Kind::section, pid, place_};
  SectionSight& sight = observation.section;
  sight.table_id = section[0];
  sight.begin = section_offset();
  sight.is_long = is_long && size >= smallest_long;
  if (sight.is_long) {
    describe(sight, pid, section, size);
  } else {
    sight.content.assign(section, section + size);
  }
  seen_.push_back(std::move(observation));
}

void SectionWatch::describe(SectionSight& sight, int pid, unsigned char const* section, int size) {
  sight.extension = word(section + 3);
  sight.version = section[5] >> 1 & 0x1F;
  sight.is_current = (section[5] & 1) != 0;
  sight.number = section[6];
  sight.last_number = section[7];
  if (is_sdt(sight.table_id)) sight.original_network = word(section + 8);
  if (is_eit(sight.table_id) && size >= smallest_of_eit) {
    sight.transport_stream = word(section + 8);
    sight.original_network = word(section + 10);
    sight.segment_last_number = section[12];
    sight.last_table = section[13];
  }
  using Sighting = sivane::SeenSections::Sighting;
  Sighting const sighting = known_.see(pid, section);
  sight.has_changed = sighting == Sighting::changed;
  if (sighting != Sighting::repeated) sight.content.assign(section, section + size);
}

}  // namespace inspect
