// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/extended_reading.h>
#include <sivane/catalogue/program_book.h>
#include <sivane/catalogue/table_ids.h>
#include <sivane/catalogue/values.h>

#include <algorithm>

namespace sivane::catalogue {

namespace {

bool has_general(PmtStreamInfo const& stream, int tag) {
  auto const& descriptors = stream.get_general_descriptors();
  return std::any_of(descriptors.begin(), descriptors.end(),
                     [tag](auto const& other) { return other.tag == tag; });
}

ElementaryStream::Coding coding_of(PmtStreamInfo const& stream) {
  using Coding = ElementaryStream::Coding;
  constexpr int enhanced_ac3_tag = 0x7A, dts_tag = 0x7B, aac_tag = 0x7C;
  if (!stream.get_AC3_descriptors().empty()) return Coding::ac3;
  if (has_general(stream, enhanced_ac3_tag)) return Coding::enhanced_ac3;
  if (has_general(stream, dts_tag)) return Coding::dts;
  if (has_general(stream, aac_tag)) return Coding::aac;
  if (find_extended<DescriptorAC4>(stream)) return Coding::ac4;
  if (!stream.get_subtitling_descriptors().empty()) return Coding::subtitles;
  if (find_extended<DescriptorTTMLSubtitling>(stream)) return Coding::ttml;
  if (!stream.get_teletext_descriptors().empty()) return Coding::teletext;
  bool const has_vbi =
      !stream.get_VBI_teletext_descriptors().empty() || !stream.get_VBI_data_descriptors().empty();
  return has_vbi ? Coding::vbi : Coding::untold;
}

std::vector<std::string> languages_of(PmtStreamInfo const& stream) {
  std::vector<std::string> languages;
  for (auto const& descriptor : stream.get_ISO_639_language_descriptors()) {
    for (auto const& item : descriptor.language_vector)
      languages.push_back(code_text(item.ISO_639_language_code));
  }
  for (auto const& descriptor : stream.get_subtitling_descriptors()) {
    for (auto const& item : descriptor.subtitlinginfo)
      languages.push_back(code_text(item.ISO_639_language_code));
  }
  for (auto const& descriptor : stream.get_teletext_descriptors()) {
    for (auto const& item : descriptor.teletextitems) languages.push_back(code_text(item.language_code));
  }
  make_unique(languages);
  return languages;
}

std::optional<SupplementaryAudio> supplementary_of(PmtStreamInfo const& stream) {
  auto const descriptor = find_extended<DescriptorSupplementaryAudio>(stream);
  if (!descriptor) return std::nullopt;
  SupplementaryAudio audio;
  audio.is_complete = descriptor->mix_type;
  audio.classification = descriptor->editorial_classification;
  if (descriptor->language_code_present) audio.language = code_text(descriptor->ISO_639_language_code);
  return audio;
}

ElementaryStream stream_of(PmtStreamInfo const& info) {
  ElementaryStream stream;
  stream.pid = info.elementary_pid;
  stream.stream_type = info.stream_type;
  auto const& identifiers = info.get_stream_identifier_descriptors();
  if (!identifiers.empty()) stream.component_tag = identifiers.front().component_tag;
  stream.coding = coding_of(info);
  stream.languages = languages_of(info);
  stream.supplementary = supplementary_of(info);
  stream.access = access_of(info.get_CA_descriptors());
  return stream;
}

}  // namespace

/// Program 0 is the network's.
Taken ProgramBook::take(Pat const& pat, Desk& desk) {
  Taken taken;
  for (auto const& entry : pat.program_infos) {
    if (entry.program_number == 0) continue;
    ProgramKey const key = {entry.program_number};
    Program const* const known = programs_.find(key);
    Program program = known == nullptr ? Program() : *known;
    program.map_pid = entry.program_map_pid;
    taken.add(static_cast<Name>(entry.program_number), programs_.put(key, std::move(program), desk));
  }
  return taken;
}

Taken ProgramBook::take(Pmt const& pmt, Desk& desk) {
  ProgramKey const key = {pmt.context_id};
  Program const* const known = programs_.find(key);
  Program program;
  if (known != nullptr) program.map_pid = known->map_pid;
  program.is_mapped = true;
  program.pcr_pid = pmt.pcr_pid;
  program.access = access_of(pmt.get_CA_descriptors());
  program.streams.reserve(pmt.stream_infos.size());
  for (PmtStreamInfo const& info : pmt.stream_infos) program.streams.push_back(stream_of(info));
  Taken taken;
  taken.is_cut = !programs_.put(key, std::move(program), desk);
  return taken;
}

void ProgramBook::drop(Names const& gone, Desk& desk) {
  for (Name const number : gone) {
    programs_.erase({static_cast<int>(number)}, desk);
    desk.versions.forget(sub_table_key(pmt_id, static_cast<int>(number)), desk.budget);
  }
}

}  // namespace sivane::catalogue
