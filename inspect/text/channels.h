// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/catalogue.h>

#include <string>

namespace inspect {

/// What guides and playlists know a service by: "257.1106.65300.dvb".
std::string channel_id(sivane::catalogue::ServiceKey const& key);

/// Its name; "service 257" where it has none.
std::string channel_name(sivane::catalogue::Catalogue const& catalogue,
                         sivane::catalogue::ServiceKey const& key);

}  // namespace inspect
