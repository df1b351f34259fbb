// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/channels.h"

namespace inspect {

std::string channel_id(sivane::catalogue::ServiceKey const& key) {
  return std::to_string(key.service) + '.' + std::to_string(key.transport_stream) + '.' +
         std::to_string(key.original_network) + ".dvb";
}

std::string channel_name(sivane::catalogue::Catalogue const& catalogue,
                         sivane::catalogue::ServiceKey const& key) {
  auto const* const service = catalogue.find(key);
  return service == nullptr || service->name.empty() ? "service " + std::to_string(key.service)
                                                     : service->name;
}

}  // namespace inspect
