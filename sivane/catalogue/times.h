// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Dates of DVB as points of time (ETSI EN 300 468, Annex C). Nothing that a broadcaster may leave undefined
// has a value: a date or duration with a digit above 9, an hour above 23 in a date, or a minute or second
// above 59.
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/time.h>

#include <chrono>
#include <optional>

namespace sivane::catalogue {

/// UTC, in whole seconds.
using Time = std::chrono::time_point<std::chrono::system_clock, std::chrono::seconds>;

/// The point of time of a date read from a section. The 16 bits of its Modified Julian Date end in April
/// 2038: those with a clear high bit, before August 1948, are taken for days of the next era, 65536 days
/// later. None where undefined.
SIVANE_API std::optional<Time> time_of(DateTime const& date);

/// None where undefined.
SIVANE_API std::optional<std::chrono::seconds> duration_of(Duration const& duration);

}  // namespace sivane::catalogue
