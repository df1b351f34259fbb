// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Dates of DVB as points of time (ETSI EN 300 468, Annex C). Nothing that a broadcaster may leave undefined
// has a value: a date or duration with a digit above 9, an hour above 23 in a date, or a minute or second
// above 59.
#pragma once

#include <sivane/catalogue/compared.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/time.h>

#include <chrono>
#include <optional>
#include <string>
#include <tuple>

namespace sivane::catalogue {

/// UTC, in whole seconds.
using Time = std::chrono::time_point<std::chrono::system_clock, std::chrono::seconds>;

/// How far the clocks of a region are from UTC (ETSI EN 300 468, 6.2.20).
struct LocalTimeOffset {
  std::string country;                  ///< ISO 3166 code
  int region = 0;                       ///< country_region_id, 6 bits; 0 the country is one
  std::chrono::minutes offset{0};       ///< now; below 0 west of Greenwich
  std::optional<Time> change;           ///< from when on the next one holds; none where undefined
  std::chrono::minutes next_offset{0};  ///< from then on
  /// The members, as they are compared.
  auto tied() const { return std::tie(country, region, offset, change, next_offset); }
};

/// The point of time of a date read from a section. The 16 bits of its Modified Julian Date end in April
/// 2038: those with a clear high bit, before August 1948, are taken for days of the next era, 65536 days
/// later. None where undefined.
SIVANE_API std::optional<Time> time_of(DateTime const& date);

/// None where undefined.
SIVANE_API std::optional<std::chrono::seconds> duration_of(Duration const& duration);

}  // namespace sivane::catalogue
