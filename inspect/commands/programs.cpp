// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/programs.h"

#include <sivane/sivane.h>

#include <cstdio>

#include "console.h"
#include "text/hexadecimal.h"
#include "text/names.h"
#include "text/stream_types.h"

namespace inspect {

namespace {

constexpr int null_pid = 0x1FFF;

/// PIDs that every stream uses alike (ETSI EN 300 468, table 1).
std::string usual_content(int pid) {
  switch (pid) {
    case 0x0000:
      return "PAT";
    case 0x0001:
      return "CAT";
    case 0x0002:
      return "TSDT";
    case 0x0010:
      return "NIT";
    case 0x0011:
      return "SDT, BAT";
    case 0x0012:
      return "EIT";
    case 0x0013:
      return "RST";
    case 0x0014:
      return "TDT, TOT";
    case 0x0015:
      return "network synchronisation";
    case 0x001E:
      return "DIT";
    case 0x001F:
      return "SIT";
    case null_pid:
      return "null packets";
    default:
      return "unreferenced";
  }
}

/// Languages come from the air: what is no letter is shown as "?".
std::string language(char const (&code)[4]) {
  std::string text(code);
  for (char& c : text) {
    bool const is_letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (!is_letter) c = '?';
  }
  return text;
}

std::set<std::string> languages_of(sivane::PmtStreamInfo const& stream) {
  std::set<std::string> languages;
  for (auto const& descriptor : stream.get_ISO_639_language_descriptors()) {
    for (auto const& item : descriptor.language_vector)
      languages.insert(language(item.ISO_639_language_code));
  }
  for (auto const& descriptor : stream.get_subtitling_descriptors()) {
    for (auto const& item : descriptor.subtitlinginfo) languages.insert(language(item.ISO_639_language_code));
  }
  for (auto const& descriptor : stream.get_teletext_descriptors()) {
    for (auto const& item : descriptor.teletextitems) languages.insert(language(item.language_code));
  }
  return languages;
}

std::string joined(std::set<std::string> const& words) {
  std::string text;
  for (std::string const& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

std::string share_text(unsigned long long packets, unsigned long long total) {
  char text[16];
  std::snprintf(text, sizeof text, "%.2f %%",
                100.0 * static_cast<double>(packets) / static_cast<double>(total));
  return text;
}

}  // namespace

void ProgramsCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x09, 0x0A, 0x45, 0x46, 0x56, 0x59, 0x6A, 0x7A, 0x7B,
                      0x7C});  // service, CA, and what tells streams apart
}

void ProgramsCommand::show(Section const& section) {
  constexpr int last_of_programs = 0x02, actual_stream = 0x42;
  if (section.table_id() > last_of_programs && section.table_id() != actual_stream) return;
  auto const table = table_of(section);
  if (!table) return;
  if (auto const* const pat = current_as<sivane::Pat>(*table)) take(*pat);
  if (auto const* const cat = current_as<sivane::Cat>(*table)) take(*cat);
  if (auto const* const pmt = current_as<sivane::Pmt>(*table)) take(*pmt);
  services_.take(*table, texts_);
}

void ProgramsCommand::take(sivane::Pat const& pat) {
  for (auto const& program : pat.program_infos) {
    if (program.program_number != 0) program_map_pids_[program.program_number] = program.program_map_pid;
  }
}

void ProgramsCommand::take(sivane::Cat const& cat) {
  for (auto const& descriptor : cat.get_CA_descriptors()) add_ca(common_, descriptor, "EMM");
}

void ProgramsCommand::add_ca(Pids& pids, sivane::DescriptorCa const& descriptor, char const* what) {
  Content& content = pids[descriptor.pid];
  if (content.what.empty()) content.what = what;
  content.ca_systems.insert(descriptor.sys_id);
}

void ProgramsCommand::take(sivane::Pmt const& pmt) {
  Pids pids;
  for (auto const& descriptor : pmt.get_CA_descriptors()) add_ca(pids, descriptor, "ECM");
  for (auto const& stream : pmt.stream_infos) take_stream(stream, pids);
  if (pmt.pcr_pid != null_pid) {
    std::string& what = pids[pmt.pcr_pid].what;
    what += what.empty() ? "PCR" : ", PCR";
  }
  programs_[pmt.context_id] = pids;
}

void ProgramsCommand::take_stream(sivane::PmtStreamInfo const& stream, Pids& pids) {
  Content& content = pids[stream.elementary_pid];
  content.what = stream_type_text(stream);
  content.languages = languages_of(stream);
  for (auto const& descriptor : stream.get_CA_descriptors()) {
    content.ca_systems.insert(descriptor.sys_id);
    add_ca(pids, descriptor, "ECM");
  }
}

/// A service has the number of its program.
std::string ProgramsCommand::map_content(int number) const {
  for (auto const& [id, service] : services_.all()) {
    if (id.service == number && !service.name.empty()) return "PMT of " + service.name;
  }
  return "PMT";
}

void ProgramsCommand::add_row(Columns& columns, std::string const& program, int pid,
                              Content const& content) const {
  std::string packets = "-", share = "-";
  if (counts_.total > 0) {
    auto const found = counts_.by_pid.find(pid);
    unsigned long long const count = found == counts_.by_pid.end() ? 0 : found->second;
    packets = grouped(static_cast<long long>(count));
    share = share_text(count, counts_.total);
  }
  columns.add({program, c_hexadecimal(pid, 2), content.what, joined(content.languages),
               ca_systems(content.ca_systems), packets, share});
}

void ProgramsCommand::finish() {
  Columns columns({"program", "PID", "content", "languages", "CA systems", "packets", "share"});
  std::set<int> listed;
  for (auto const& [number, map_pid] : program_map_pids_) {
    add_row(columns, std::to_string(number), map_pid, {map_content(number), {}, {}});
    listed.insert(map_pid);
    for (auto const& [pid, content] : programs_[number]) {
      add_row(columns, std::to_string(number), pid, content);
      listed.insert(pid);
    }
  }
  for (auto const& [pid, count] : counts_.by_pid)
    common_.try_emplace(pid, Content{usual_content(pid), {}, {}});
  for (auto const& [pid, content] : common_) {
    if (!listed.contains(pid)) add_row(columns, "-", pid, content);
  }
  if (columns.empty()) {
    note("no program is described");
  } else {
    columns.print(out_);
  }
}

}  // namespace inspect
