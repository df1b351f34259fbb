// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "sections_command.h"

#include <sivane/sivane.h>

#include <ostream>

namespace inspect {

namespace {

std::string c_hexadecimal(int value, int bytes) {
  unsigned char const big_endian[] = {static_cast<unsigned char>(value >> 8),
                                      static_cast<unsigned char>(value)};
  std::string text = "0x";
  sivane::bin2str(big_endian + 2 - bytes, text, bytes);
  return text;
}

}  // namespace

void SectionsCommand::show(Section const& section) {
  std::string line = section.pid == Section::no_pid ? "-" : c_hexadecimal(section.pid, 2);
  line += ' ' + c_hexadecimal(section.table_id(), 1) + ' ';
  sivane::bin2str(section.bytes.data(), line, static_cast<int>(section.bytes.size()));
  out_ << line << '\n';
}

}  // namespace inspect
