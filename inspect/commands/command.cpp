// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/command.h"

#include <sivane/sivane.h>

#include "commands/failure_text.h"
#include "console.h"

namespace inspect {

bool Command::take(Section const& section) {
  has_right_crc_ = true;
  if (seen_ && !section.bytes.empty() && !seen_->is_new(section.pid, section.bytes.data())) return true;
  ++number_;
  show(section);
  return has_right_crc_;
}

void Command::take_broken(char const* reason) {
  ++number_;
  refuse({}, reason);
}

std::unique_ptr<Table> Command::table_of(Section const& section) {
  TableClass const* const table_class = class_of(section);
  if (table_class == nullptr) {
    refuse(section, "no class for table id");
    return nullptr;
  }
  std::unique_ptr<Table> table = std::make_unique<Table>(sivane::make_table(table_class->name));
  sivane::ParseOptions options;
  options.tolerant = parsing_ == Parsing::tolerant;
  choose_tags(options);
  try {
    if (section.node != nullptr) {
      table->load(section.node);
    } else {
      table->parse(section.bytes, options);
    }
  } catch (sivane::error const& failure) {
    fail(section, {table_class->name, failure.code, failure.what(), failure.offset});
    return nullptr;
  }
  latest_problems_ = std::move(options.problems);
  tell_problems(section, table_class->name);
  return table;
}

void Command::tell_problems(Section const& section, std::string_view class_name) {
  for (sivane::ParseProblem const& problem : latest_problems_) {
    ++problems_;
    report("section " + grouped(number_) + ": " + problem_text(section, class_name, problem));
  }
}

void Command::fail(Section const& section, Failure const& failure) {
  ++failures_;
  if (failure.what == "crc error") has_right_crc_ = false;
  show_failure(section, failure);
  report("section " + grouped(number_) + ": " + failure_text(section, failure));
}

void Command::refuse(Section const& section, char const* reason) { fail(section, {"-", -1, reason}); }

}  // namespace inspect
