// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/diff.h"

#include <sivane/dom/document.h>

#include <sstream>

#include "commands/field_json.h"
#include "console.h"
#include "diff/comparison.h"
#include "diff/print.h"

namespace inspect {

namespace {

/// What comes back of a table from its document.
std::unique_ptr<Table> through_document(Table const& table) {
  sivane::dom::Document document;
  table.save(document.dom(), document.make_root("table").get());
  auto loaded = std::make_unique<Table>(sivane::make_table(table.class_name()));
  loaded->load(document.root_node().get());
  return loaded;
}

}  // namespace

DiffCommand::DiffCommand(Showing const& showing)
    : showing_(showing), texts_(with_line_breaks(showing.charset)) {
  show_changes_alone();
}

void DiffCommand::show(Section const& section) {
  if (!section.json.empty()) return current_->take(section.pid, section.class_name, section.json);
  std::unique_ptr<Table> table = table_of(section);
  if (!table) return;
  if (showing_.as_documents && section.node == nullptr) table = through_document(*table);
  int const pid = showing_.as_documents ? Section::no_pid : section.pid;  // documents tell of none
  current_->take(pid, table->class_name(), json_of(*table));
}

std::string DiffCommand::json_of(Table const& table) {
  std::ostringstream text;
  {
    JsonWriter json(text);
    json.begin_object();
    FieldJson fields(json, texts_, table.class_name() != "Ait");
    table.visit(fields);
    json.end_object();
  }
  return text.str();
}

void DiffCommand::finish() {
  if (current_ == &a_) {
    current_ = &b_;
    return show_changes_alone();  // what the first source had may come again
  }
  Differences const differences = compare(a_, b_);
  differ_ = !differences.found.empty();
  if (showing_.as_json) {
    JsonWriter json(showing_.out);
    print_as_json(differences, json);
  } else {
    print_as_text(differences, showing_.out, showing_.is_terminal);
  }
  if (!differences.partly_compared.empty())
    conclude(counted(std::ssize(differences.partly_compared), "table") +
             " not whole in both and compared in part");
}

}  // namespace inspect
