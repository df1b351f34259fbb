// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>

#include "check/stream_check.h"
#include "text/json.h"

namespace inspect {

/// The measures in the order of their numbers, for a person.
void print_check(std::ostream& out, StreamCheck const& check);
/// The same as one JSON object.
void print_check_as_json(std::ostream& out, StreamCheck const& check);
/// The object itself, as a value of more.
void write_check(JsonWriter& json, StreamCheck const& check);

}  // namespace inspect
