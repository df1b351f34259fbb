// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/entry.h>
#include <sivane/tables/pmt.h>

#include <iomanip>
#include <ostream>

namespace sivane {

namespace {

constexpr int entry_head_size = 5;

int pid_field(Reader& reader) {
  reader.skip_bits(3);
  return reader.bits(13);
}

void dump_host_descriptors(std::ostream& os,
                           std::vector<std::shared_ptr<DescriptorBase const>> const& descriptors) {
  for (auto const& descriptor : descriptors) descriptor->dump_state(os);
}

/// What tables and entries print alike, near the end.
void dump_common(std::ostream& os, DescriptorSet const& set) {
  dump::each(os, set.get_ISO_639_language_descriptors());
  dump::each(os, set.get_video_stream_descriptors());
  dump::each(os, set.get_audio_stream_descriptors());
  dump::each(os, set.get_STD_descriptors());
  dump::each(os, set.get_private_data_indicator_descriptors());
  dump::each(os, set.get_copyright_descriptors());
}

void append(std::vector<DescriptorCa>& out, std::vector<DescriptorCa> const& more) {
  out.insert(out.end(), more.begin(), more.end());
}

}  // namespace

PmtStreamInfo::PmtStreamInfo(_PMT_INFO* entry, int& size) {
  Reader reader = Reader::within(entry->bytes, size, start_end_mismatch);
  *this = PmtStreamInfo(reader);
  size = reader.consumed();
}

PmtStreamInfo::PmtStreamInfo(Reader& reader) {
  reader.need(entry_head_size, too_little_data);
  stream_type = reader.u8();
  elementary_pid = pid_field(reader);
  es_info_length = length_field(reader);
  parse_descriptors(reader, es_info_length, start_end_mismatch);
}

void PmtStreamInfo::dump_state(std::ostream& os) const {
  os << std::hex;
  dump::line(os, "stream_type: ", stream_type, 2);
  dump::line(os, "elementary_PID: ", elementary_pid, 4);
  dump::each(os, get_CA_descriptors());
  dump::each(os, get_general_descriptors());
  dump_host_descriptors(os, descriptors);
  dump::each(os, get_teletext_descriptors());
  dump_common(os, *this);
  dump::each(os, get_stream_identifier_descriptors());
}

void Pmt::_parse(unsigned char const* body) {
  Reader reader = body_reader(body);
  pcr_pid = pid_field(reader);
  int const program_info_length = length_field(reader);
  parse_descriptors(reader, program_info_length, start_end_mismatch, LoopEnd::exact);
  reader.walk(stream_infos, start_end_mismatch);
}

void Pmt::_reset() {
  stream_infos.clear();
  descriptors.clear();
  clear_descriptors();
}

void Pmt::_dump_state(std::ostream& os) const {
  std::ios::fmtflags const flags = os.flags();
  std::streamsize const width = os.width();
  os << std::hex << std::right << std::unitbuf << std::uppercase << std::setfill('0');
  dump::line(os, "program_number: ", context_id, 4);
  dump::line(os, "version_number: ", version_number, 2);
  dump::line(os, "section_number: ", section_number, 2);
  dump::line(os, "last_section_number: ", last_section_number, 2);
  dump::line(os, "current_next_indicator: ", current_next_indicator, 2);
  dump::line(os, "pcr_pid: ", pcr_pid, 2);
  dump::each(os, get_CA_descriptors());
  dump::each(os, get_general_descriptors());
  dump_host_descriptors(os, descriptors);
  dump_common(os, *this);
  os << "Dumping " << stream_infos.size() << " stream infos" << std::endl;
  dump::each(os, stream_infos);
  dump::line(os, "crc32: ", crc32, 8);
  os.flags(flags);
  os.width(width);
}

bool Pmt::is_valid_syntax_indicator(int indicator) const { return indicator == 1; }

void Pmt::get_all_ca_descriptors(std::vector<DescriptorCa>& out) const {
  append(out, get_CA_descriptors());
  for (PmtStreamInfo const& stream : stream_infos) append(out, stream.get_CA_descriptors());
}

}  // namespace sivane
