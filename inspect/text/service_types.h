// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string_view>

namespace inspect {

/// What a service_type stands for today (ETSI EN 300 468 V1.17.1, table 89); empty where it is reserved or a
/// user's own. The library's own text is older, and a part of stored dumps.
std::string_view service_type_text(int type);

}  // namespace inspect
