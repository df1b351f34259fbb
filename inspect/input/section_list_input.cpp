// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/section_list_input.h"

#include <sivane/sivane.h>

#include <istream>
#include <vector>

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

void give_line(std::string_view line, Command& command) {
  std::size_t const name_end = line.find_first_of(blanks);
  bool const is_named = name_end != std::string_view::npos;
  std::string_view const name = is_named ? line.substr(0, name_end) : std::string_view();
  std::vector<unsigned char> const bytes = bytes_of(is_named ? trim(line.substr(name_end)) : line);
  if (bytes.size() < section_start_size || bytes.size() < claimed_size(bytes.data())) {
    command.take_broken("not a whole section");
  } else {
    command.take({.bytes = {bytes.data(), claimed_size(bytes.data())}, .class_name = name});
  }
}

}  // namespace

bool read_section_list(std::istream& in, Command& command) {
  for (std::string text; std::getline(in, text);) {
    std::string_view const line = trim(text);
    if (!line.empty() && line.front() != '#') give_line(line, command);
  }
  if (in.bad()) report("the input cannot be read on");
  return !in.bad();
}

}  // namespace inspect
