// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/catalogue.h>

#include "report/rate_course.h"
#include "text/json.h"

namespace inspect {

// Members of the report's data that come from the catalogue and the packets.

void write_networks(JsonWriter& json, sivane::catalogue::Catalogue const& catalogue);
void write_services(JsonWriter& json, sivane::catalogue::Catalogue const& catalogue);
void write_programs(JsonWriter& json, sivane::catalogue::Catalogue const& catalogue);
void write_events(JsonWriter& json, sivane::catalogue::Catalogue const& catalogue);
/// The PIDs with their share and its course.
void write_pids(JsonWriter& json, sivane::catalogue::Catalogue const& catalogue, RateCourse const& course);

}  // namespace inspect
