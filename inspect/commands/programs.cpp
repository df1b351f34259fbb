// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/programs.h"

#include <sivane/sivane.h>

#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "console.h"
#include "text/hexadecimal.h"
#include "text/names.h"
#include "text/stream_types.h"
#include "text/terminal.h"
#include "text/usual_pids.h"

namespace inspect {

namespace {

using namespace sivane::catalogue;

struct Content {
  std::string what;
  std::vector<std::string> languages;
  std::set<int> ca_systems;
};
using Pids = std::map<int, Content>;

std::string joined(std::vector<std::string> const& words) {
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

/// Several systems may share a PID.
void add_access(Pids& pids, std::vector<ConditionalAccess> const& access, char const* what) {
  for (ConditionalAccess const& one : access) {
    Content& content = pids[one.pid];
    if (content.what.empty()) content.what = what;
    content.ca_systems.insert(one.system);
  }
}

void add_stream(Pids& pids, ElementaryStream const& stream) {
  Content& content = pids[stream.pid];
  content.what = stream_type_text(stream);
  content.languages = stream.languages;
  for (ConditionalAccess const& one : stream.access) content.ca_systems.insert(one.system);
  add_access(pids, stream.access, "ECM");
}

Pids pids_of(Program const& program) {
  Pids pids;
  add_access(pids, program.access, "ECM");
  for (ElementaryStream const& stream : program.streams) add_stream(pids, stream);
  if (program.pcr_pid != Program::no_pcr) {
    std::string& what = pids[program.pcr_pid].what;
    what += what.empty() ? "PCR" : ", PCR";
  }
  return pids;
}

/// What the PIDs of program maps hold, by program: a service has the number of its program.
std::map<int, std::string> map_contents(Catalogue const& catalogue) {
  std::map<int, std::string> contents;
  for (auto const& [key, service] : catalogue.services()) {
    if (!service.name.empty()) contents.try_emplace(key.service, "PMT of " + service.name);
  }
  for (auto const& [key, program] : catalogue.programs()) contents.try_emplace(key.number, "PMT");
  return contents;
}

/// The rows of the list.
class Rows {
 public:
  explicit Rows(PacketCounts const& counts) : counts_(counts) {}

  void add(std::string const& program, int pid, Content const& content) {
    std::string packets = "-", share = "-";
    if (counts_.total > 0) {
      auto const found = counts_.by_pid.find(pid);
      unsigned long long const count = found == counts_.by_pid.end() ? 0 : found->second;
      packets = grouped(static_cast<long long>(count));
      share = share_text(count, counts_.total);
    }
    columns_.add({program, c_hexadecimal(pid, 2), content.what, joined(content.languages),
                  ca_systems(content.ca_systems), packets, share});
    listed_.insert(pid);
  }
  /// Those that belong to no program.
  void add_others(Pids others) {
    for (auto const& [pid, count] : counts_.by_pid)
      others.try_emplace(pid, Content{usual_content(pid), {}, {}});
    for (auto const& [pid, content] : others) {
      if (!listed_.contains(pid)) add("-", pid, content);
    }
  }
  Columns const& columns() const { return columns_; }

 private:
  PacketCounts const& counts_;
  Columns columns_{{"program", "PID", "content", "languages", "CA systems", "packets", "share"}};
  std::set<int> listed_;
};

/// Below the PIDs, with an empty line between; nothing where all sound is the main one.
void print_supplementary_audio(Catalogue const& catalogue, std::ostream& out) {
  Columns columns({"program", "PID", "supplementary audio", "language", "heard"});
  for (auto const& [key, program] : catalogue.programs()) {
    for (ElementaryStream const& stream : program.streams) {
      if (!stream.supplementary) continue;
      SupplementaryAudio const& audio = *stream.supplementary;
      columns.add({std::to_string(key.number), c_hexadecimal(stream.pid, 2), purpose_text(audio),
                   audio.language.empty() ? "-" : audio.language,
                   audio.is_complete ? "by itself" : "mixed into the main audio"});
    }
  }
  if (columns.empty()) return;
  out << '\n';
  columns.print(out);
}

}  // namespace

void ProgramsCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x09, 0x0A, 0x45, 0x46, 0x56, 0x59, 0x6A, 0x7A, 0x7B, 0x7C,
                      0x7F});  // service, CA, and what tells streams apart
}

void ProgramsCommand::show(Section const& section) {
  constexpr int last_of_programs = 0x02, actual_stream = 0x42;
  if (section.table_id() <= last_of_programs || section.table_id() == actual_stream) {
    CatalogueCommand::show(section);
  }
}

bool ProgramsCommand::print(Catalogue const& catalogue, std::ostream& out) {
  Rows rows(counts_);
  auto const maps = map_contents(catalogue);
  for (auto const& [key, program] : catalogue.programs()) {
    if (!program.map_pid) continue;
    std::string const number = std::to_string(key.number);
    rows.add(number, *program.map_pid, {maps.at(key.number), {}, {}});
    if (!program.is_mapped) continue;
    for (auto const& [pid, content] : pids_of(program)) rows.add(number, pid, content);
  }
  Pids others;
  add_access(others, catalogue.access(), "EMM");
  rows.add_others(std::move(others));
  if (rows.columns().empty()) return false;
  rows.columns().print(out);
  print_supplementary_audio(catalogue, out);
  return true;
}

}  // namespace inspect
