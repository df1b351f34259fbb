// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/content_measures.h"

#include <sivane/tables/any_table.h>

#include <algorithm>
#include <span>

#include "check/subject_texts.h"
#include "commands/failure_text.h"
#include "text/hexadecimal.h"

namespace inspect {

namespace {

constexpr std::size_t most_bytes_shown = 32;

std::string bytes_text(std::span<unsigned char const> bytes) {
  std::string text;
  for (int const byte : bytes.first(std::min(bytes.size(), most_bytes_shown)))
    text += ' ' + c_hexadecimal(byte, 1).substr(2);
  return bytes.size() > most_bytes_shown ? text + " ..." : text;
}

/// Of the descriptor that begins at the offset, by its length byte.
std::span<unsigned char const> descriptor_at(std::span<unsigned char const> section, int offset) {
  auto const at = static_cast<std::size_t>(std::max(offset, 0));
  if (offset < 0 || at + 2 > section.size()) return {};
  return section.subspan(at, std::min<std::size_t>(2u + section[at + 1], section.size() - at));
}

std::string problem_text(std::span<unsigned char const> section, sivane::ParseProblem const& problem) {
  std::string const reason = reason_text(problem.code, problem.text);
  if (problem.tag < 0) return reason + " at byte " + std::to_string(problem.offset);
  return "descriptor " + c_hexadecimal(problem.tag, 1) + " at byte " + std::to_string(problem.offset) + ": " +
         reason + ":" + bytes_text(descriptor_at(section, problem.offset));
}

}  // namespace

void judge_content(Findings& findings, Observation const& observation) {
  SectionSight const& section = observation.section;
  if (section.content.empty()) return;
  std::string const subject = table_text(observation.pid, section, section.is_long ? section.number : -1);
  sivane::ParseOptions options;
  try {
    sivane::parse_table(section.content.data(), section.content.size(), options);
  } catch (sivane::error const& failure) {
    findings.add(Measure::failed_section, subject, observation.place,
                 reason_text(failure.code, failure.what()));
  }
  for (sivane::ParseProblem const& problem : options.problems) {
    findings.add(problem.tag >= 0 ? Measure::failed_descriptor : Measure::failed_section, subject,
                 observation.place, problem_text(section.content, problem));
  }
}

}  // namespace inspect
