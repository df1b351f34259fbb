// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/json_input.h"

#include <string>

#include "diff/json_text.h"
#include "input/source_stream.h"
#include "text/code_names.h"

namespace inspect {

namespace {

/// What --names has put behind the codes, which follows from them.
void drop_names(JsonValue& value) {
  if (value.IsArray()) {
    for (JsonValue& item : value.GetArray()) drop_names(item);
  } else if (value.IsObject()) {
    auto const end = value.MemberEnd();
    auto kept = value.MemberBegin();
    for (auto member = kept; member < end; ++member) {
      if (is_code_name(string_of(member->name))) continue;
      drop_names(member->value);
      kept->name.Swap(member->name);
      kept->value.Swap(member->value);
      ++kept;
    }
    if (kept < end) value.EraseMember(kept, end);
  }
}

void give_line(std::string const& line, Command& command) {
  rapidjson::Document object = object_of(line);
  drop_names(object);
  if (member_of(object, "error") != nullptr) return;
  JsonValue const* const name = member_of(object, "class");
  JsonValue const* const table = member_of(object, "table");
  bool const is_table = name != nullptr && name->IsString() && table != nullptr && table->IsObject();
  if (!is_table) return command.take_broken("not a line of JSON with a table");
  std::string const text = text_of(*table);
  Section section{.json = text, .class_name = string_of(*name)};
  if (member_of(object, "pid") != nullptr) section.pid = number_of(object, "pid");
  command.take(section);
}

}  // namespace

void read_json(Source& source, Command& command) {
  SourceStream in(source);
  for (std::string line; std::getline(in, line);) {
    if (!line.empty()) give_line(line, command);
  }
}

}  // namespace inspect
