// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/sections.h"

#include <sivane/sivane.h>

#include <ostream>

#include "text/hexadecimal.h"

namespace inspect {

void SectionsCommand::show(Section const& section) {
  std::string line = section.pid == Section::no_pid ? "-" : c_hexadecimal(section.pid, 2);
  line += ' ' + c_hexadecimal(section.table_id(), 1) + ' ';
  sivane::bin2str(section.bytes.data(), line, static_cast<int>(section.bytes.size()));
  out_ << line << '\n';
}

}  // namespace inspect
