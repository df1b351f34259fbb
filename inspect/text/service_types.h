// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/service.h>

#include <string>

namespace inspect {

/// What a service is, by its service_type, which stands in hexadecimal where it has no name; empty where no
/// service descriptor told it.
std::string service_type_text(sivane::catalogue::Service const& service);

}  // namespace inspect
