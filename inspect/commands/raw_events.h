// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <span>
#include <string>
#include <vector>

namespace inspect {

/// The name fields of the events of an EIT section, one an event in order, empty where there is none. They
/// come from the section itself, since a parsed event has lost the selector of its character table.
std::vector<std::string> event_names(std::span<unsigned char const> section);

}  // namespace inspect
