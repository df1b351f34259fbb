// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/section_list_input.h"

#include <sivane/sivane.h>

#include <charconv>
#include <optional>
#include <vector>

#include "input/source_stream.h"

namespace inspect {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trim(std::string_view text) {
  std::size_t const begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// What the digits spell. Empty if there are other characters among them; an odd last digit is no byte.
std::vector<unsigned char> bytes_of(std::string_view digits) {
  if (digits.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos) return {};
  std::vector<unsigned char> bytes;
  sivane::str2bin(std::string(digits.substr(0, digits.size() / 2 * 2)), bytes);
  return bytes;
}

/// The words of a line.
std::vector<std::string_view> words_of(std::string_view line) {
  std::vector<std::string_view> words;
  for (line = trim(line); !line.empty(); line = trim(line)) {
    words.push_back(line.substr(0, line.find_first_of(blanks)));
    line.remove_prefix(words.back().size());
  }
  return words;
}

/// What the digits after 0x say, all `count` of them.
std::optional<int> hexadecimal(std::string_view word, std::size_t count) {
  int value = 0;
  if (word.size() != count + 2 || !word.starts_with("0x")) return {};
  char const* const end = word.data() + word.size();
  auto const [stop, fault] = std::from_chars(word.data() + 2, end, value, 16);
  return fault == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

/// A section but for its bytes: what the words before these tell. Nothing where they are other words.
std::optional<Section> description_of(std::span<std::string_view const> words) {
  if (words.empty()) return Section();
  if (words.size() == 1) return Section{.class_name = words[0]};
  if (words.size() != 2 || !hexadecimal(words[1], 2)) return {};
  if (words[0] == "-") return Section();
  auto const pid = hexadecimal(words[0], 4);
  return pid ? std::optional(Section{.pid = *pid}) : std::nullopt;
}

void give_line(std::string_view line, Command& command) {
  std::vector<std::string_view> const words = words_of(line);
  std::optional<Section> section = description_of(std::span(words).first(words.size() - 1));
  std::vector<unsigned char> const bytes = bytes_of(words.back());
  if (!section || bytes.size() < section_start_size || bytes.size() < claimed_size(bytes.data())) {
    command.take_broken("not a whole section");
  } else {
    section->bytes = {bytes.data(), claimed_size(bytes.data())};
    command.take(*section);
  }
}

}  // namespace

void read_section_list(Source& source, Command& command) {
  SourceStream in(source);
  for (std::string text; std::getline(in, text);) {
    std::string_view const line = trim(text);
    if (!line.empty() && line.front() != '#') give_line(line, command);
  }
}

}  // namespace inspect
