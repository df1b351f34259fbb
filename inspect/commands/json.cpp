// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/json.h"

#include "commands/field_json.h"

namespace inspect {

JsonCommand::JsonCommand(Showing const& showing)
    : json_(showing.out), texts_(with_line_breaks(showing.charset)), with_names_(showing.with_names) {}

void JsonCommand::show(Section const& section) {
  std::unique_ptr<Table> const table = table_of(section);
  if (!table) return;
  begin(section, table->table_id(), table->class_name());
  json_.key("table");
  json_.begin_object();
  FieldJson fields(json_, texts_, table->class_name() != "Ait");
  CodeNames names(table->class_name());
  if (with_names_) fields.add_names(names);
  table->visit(fields);
  json_.end_object();
  if (!latest_problems().empty()) write_problems();
  json_.end_object();
  json_.end_line();
}

void JsonCommand::show_failure(Section const& section, Failure const& failure) {
  begin(section, section.bytes.empty() ? -1 : section.table_id(), failure.class_name);
  json_.key("error");
  json_.begin_object();
  json_.member("code", failure.code);
  json_.member("what", failure.what);
  json_.member("at", failure.offset);
  json_.end_object();
  json_.end_object();
  json_.end_line();
}

/// Opens the line's object; what the input does not tell is left out.
void JsonCommand::begin(Section const& section, int table_id, std::string_view class_name) {
  json_.begin_object();
  json_.member("number", number());
  if (section.pid != Section::no_pid) json_.member("pid", section.pid);
  if (table_id >= 0) json_.member("table_id", table_id);
  if (section.offset >= 0) json_.member("offset", section.offset);
  json_.member("class", class_name);
}

void JsonCommand::write_problems() {
  json_.key("problems");
  json_.begin_array();
  for (sivane::ParseProblem const& problem : latest_problems()) {
    json_.begin_object();
    json_.member("at", problem.offset);
    json_.member("tag", problem.tag);
    json_.member("code", static_cast<int>(problem.code));
    json_.member("what", problem.text);
    json_.end_object();
  }
  json_.end_array();
}

}  // namespace inspect
