// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "dump_command.h"

#include <sivane/sivane.h>

#include <sstream>

namespace inspect {

void DumpCommand::show(Section const& section) {
  TableClass const* const table_class =
      section.class_name.empty() ? find_class(section.table_id()) : find_class(section.class_name);
  if (table_class == nullptr) {
    refuse("no class for table id");
  } else {
    show_as(*table_class, section);
  }
}

void DumpCommand::show_as(TableClass const& table_class, Section const& section) {
  // A dump leaves its stream's base and fill changed, and a failing one must leave nothing behind.
  std::ostringstream text;
  try {
    table_class.dump(section.bytes, text);
  } catch (sivane::error const& failure) {
    fail({table_class.name, failure.code, failure.what()});
    return;
  }
  show_title(table_class.name);
  out_ << text.str();
}

void DumpCommand::show_failure(Failure const& failure) {
  show_title(failure.class_name);
  out_ << "error " << failure.code << ' ' << failure.what << '\n';
}

void DumpCommand::show_title(std::string_view class_name) {
  out_ << "== " << number() << ' ' << class_name << '\n';
}

}  // namespace inspect
