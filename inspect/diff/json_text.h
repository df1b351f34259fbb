// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <rapidjson/document.h>

#include <string>
#include <string_view>

namespace inspect {

using JsonValue = rapidjson::Value;

/// The object that a text is; an empty one where it is none, or is nested deeper than any table.
rapidjson::Document object_of(std::string_view json);
/// A value as text, without blanks.
std::string text_of(JsonValue const& value);

/// A member; null where the object has none of this name.
JsonValue const* member_of(JsonValue const& object, std::string_view name);
/// A member that is a number or, as 0 and 1, a flag; 0 where there is none.
int number_of(JsonValue const& object, std::string_view name);
inline std::string_view string_of(JsonValue const& value) {
  return {value.GetString(), value.GetStringLength()};
}

}  // namespace inspect
