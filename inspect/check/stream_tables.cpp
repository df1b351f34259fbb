// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/stream_tables.h"

#include <algorithm>

namespace inspect {

namespace {

// Of ISO/IEC 13818-1, table 2-34, and of ETSI TS 101 154 for the descriptors of private PES packets.
constexpr int video_and_audio[] = {0x01, 0x02, 0x03, 0x04, 0x0F, 0x10, 0x11, 0x1B, 0x1C, 0x24, 0x33};
constexpr int private_pes = 0x06;
constexpr int audio_descriptors[] = {0x6A, 0x7A, 0x7B, 0x7C};  // AC-3, enhanced AC-3, DTS, AAC

bool has_audio_descriptor(sivane::PmtStreamInfo const& stream) {
  return std::ranges::any_of(stream.get_general_descriptors(), [](auto const& descriptor) {
    return std::ranges::find(audio_descriptors, descriptor.tag) != std::end(audio_descriptors);
  });
}

bool is_timed(sivane::PmtStreamInfo const& stream) {
  if (stream.stream_type == private_pes) return has_audio_descriptor(stream);
  return std::ranges::find(video_and_audio, stream.stream_type) != std::end(video_and_audio);
}

std::set<int> pids_of(std::vector<sivane::DescriptorCa> const& descriptors) {
  std::set<int> pids;
  for (auto const& descriptor : descriptors) pids.insert(descriptor.pid);
  return pids;
}

}  // namespace

bool StreamTables::take(Observation const& observation) {
  SectionSight const& section = observation.section;
  if (section.content.empty() || !section.is_current) return false;
  switch (section.table_id) {
    case 0x00:
      return observation.pid == 0 && parse_as<sivane::Pat>(observation);
    case 0x01:
      return observation.pid == 1 && parse_as<sivane::Cat>(observation);
    case 0x02:
      return is_map_of_program(observation) && parse_as<sivane::Pmt>(observation);
    case 0x40:
      return observation.pid == 0x10 && parse_as<sivane::Nit>(observation);
    case 0x42:
      return observation.pid == 0x11 && parse_as<sivane::Sdt>(observation);
    default:
      return false;
  }
}

bool StreamTables::is_map_of_program(Observation const& observation) const {
  auto const program = programs_.find(observation.section.extension);
  return program != programs_.end() && program->second.map_pid == observation.pid;
}

template <class Class>
bool StreamTables::parse_as(Observation const& observation) try {
  Class table;
  sivane::ParseOptions options;
  table.Parse(observation.section.content.data(), observation.section.content.size(), options);
  take(table);
  collect_names();
  return true;
} catch (sivane::error const&) {
  return false;  // it is told where sections that fail are
}

void StreamTables::take(sivane::Pat const& pat) {
  bool const is_new = pat.version_number != pat_version_;
  pat_version_ = pat.version_number;
  has_pat_ = true;
  std::map<int, Program> const before = programs_;
  if (is_new) programs_.clear();
  if (is_new) network_pids_.clear();
  if (is_new) follows_all_programs_ = true;
  for (auto const& info : pat.program_infos) {
    if (info.program_number == 0) {
      network_pids_.insert(info.program_map_pid);
      continue;
    }
    if (programs_.size() >= most_followed && !programs_.contains(info.program_number)) {
      follows_all_programs_ = false;
      continue;
    }
    auto const known = before.find(info.program_number);
    Program& program = programs_[info.program_number];
    if (known != before.end()) program = known->second;
    program.map_pid = info.program_map_pid;
  }
}

void StreamTables::take(sivane::Pmt const& pmt) {
  Program& known = programs_.at(pmt.context_id);
  Program program;
  program.map_pid = known.map_pid;
  program.pcr_pid = pmt.pcr_pid;
  for (auto const& stream : pmt.stream_infos) {
    (is_timed(stream) ? program.timed_pids : program.other_pids).insert(stream.elementary_pid);
  }
  std::vector<sivane::DescriptorCa> descriptors;
  pmt.get_all_ca_descriptors(descriptors);
  program.ca_pids = pids_of(descriptors);
  known = program;
}

void StreamTables::take(sivane::Cat const& cat) {
  has_cat_ = true;
  management_pids_ = pids_of(cat.get_CA_descriptors());
}

void StreamTables::take(sivane::Nit const& nit) {
  knows_network_ = true;
  for (auto const& stream : nit.stream_infos) {
    if (!stream.get_terrestrial_delivery_system_descriptors().empty()) is_terrestrial_ = true;
  }
}

void StreamTables::take(sivane::Sdt const& sdt) {
  if (sdt.version_number != sdt_version_) services_.clear();
  sdt_version_ = sdt.version_number;
  for (auto const& info : sdt.service_infos) {
    if (info.EIT_present_following_flag == 1 && services_.size() < most_followed)
      services_.insert({info.service_id, sdt.context_id, sdt.original_network_id});
  }
}

bool StreamTables::has_all_maps() const {
  return has_pat_ && follows_all_programs_ &&
         std::ranges::all_of(programs_, [](auto const& entry) { return entry.second.pcr_pid >= 0; });
}

void StreamTables::collect_names() {
  named_ = management_pids_;
  named_.insert(network_pids_.begin(), network_pids_.end());
  for (auto const& [number, program] : programs_) {
    named_.insert(program.map_pid);
    named_.insert(program.pcr_pid);
    named_.insert(program.timed_pids.begin(), program.timed_pids.end());
    named_.insert(program.other_pids.begin(), program.other_pids.end());
    named_.insert(program.ca_pids.begin(), program.ca_pids.end());
  }
}

}  // namespace inspect
