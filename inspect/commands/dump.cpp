// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/dump.h"

#include <sstream>

#include "text/visible.h"

namespace inspect {

void DumpCommand::show(Section const& section) {
  std::unique_ptr<Table> const table = table_of(section);
  if (!table) return;
  std::ostringstream text;            // a dump leaves its stream's base and fill changed
  text.exceptions(std::ios::badbit);  // a stream that lacks memory would leave out lines and say nothing
  table->dump(text);
  show_title(class_of(section)->name);
  out_ << (is_terminal_ ? visible(text.str()) : text.str());
}

void DumpCommand::show_failure(Section const&, Failure const& failure) {
  show_title(failure.class_name);
  out_ << "error " << failure.code << ' ' << failure.what << '\n';
}

void DumpCommand::show_title(std::string_view class_name) {
  out_ << "== " << number() << ' ' << class_name << '\n';
}

}  // namespace inspect
