// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "diff/json_text.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>

namespace inspect {

namespace {

/// How deep objects and arrays stand in each other.
int depth_of(std::string_view json) {
  int depth = 0, deepest = 0;
  bool is_string = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    char const c = json[i];
    if (is_string && c == '\\') ++i;
    if (c == '"') is_string = !is_string;
    if (is_string) continue;
    if (c == '{' || c == '[') deepest = std::max(deepest, ++depth);
    if (c == '}' || c == ']') --depth;
  }
  return deepest;
}

}  // namespace

rapidjson::Document object_of(std::string_view json) {
  constexpr int deepest = 64;  // what is done with the values calls itself for each level
  rapidjson::Document document;
  if (depth_of(json) <= deepest) document.Parse(json.data(), json.size());
  if (document.HasParseError() || !document.IsObject()) document.SetObject();
  return document;
}

std::string text_of(JsonValue const& value) {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  value.Accept(writer);
  return {buffer.GetString(), buffer.GetSize()};
}

JsonValue const* member_of(JsonValue const& object, std::string_view name) {
  auto const found = object.FindMember(
      JsonValue(rapidjson::StringRef(name.data(), static_cast<rapidjson::SizeType>(name.size()))));
  return found == object.MemberEnd() ? nullptr : &found->value;
}

int number_of(JsonValue const& object, std::string_view name) {
  JsonValue const* const member = member_of(object, name);
  if (member != nullptr && member->IsBool()) return member->GetBool() ? 1 : 0;
  return member != nullptr && member->IsInt() ? member->GetInt() : 0;
}

}  // namespace inspect
