// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/times.h>

#include <chrono>
#include <string>

namespace inspect {

/// "2026-11-23 18:00:00".
std::string date_text(sivane::catalogue::Time time);

/// The same as XMLTV has it: "20261123180000 +0000".
std::string xmltv_text(sivane::catalogue::Time time);

/// Hours, two digits at least, minutes and seconds: "01:30:00".
std::string clock_text(std::chrono::seconds duration);

}  // namespace inspect
