// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/services.h"

#include <sivane/sivane.h>

#include <ostream>

#include "text/hexadecimal.h"
#include "text/names.h"
#include "text/terminal.h"

namespace inspect {

using sivane::catalogue::Service;

namespace {

std::string running_text(int status) {
  constexpr char const* texts[] = {"-", "not running", "starts soon", "pausing", "running", "off-air"};
  return static_cast<std::size_t>(status) < std::size(texts) ? texts[status] : "-";
}

std::string type_text(int type) {
  if (type < 0) return "-";
  char const* const text = sivane::service_type_name(type);
  return text == nullptr ? c_hexadecimal(type, 1) : text;
}

std::string access_text(Service const& service, std::vector<int> const& systems) {
  std::string const names = ca_systems({systems.begin(), systems.end()});
  if (!service.is_scrambled) return names.empty() ? "free" : "free (" + names + ")";
  return names.empty() ? "scrambled" : "scrambled (" + names + ")";
}

}  // namespace

void ServicesCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x53, 0x09});  // service, CA identifier, CA
}

bool ServicesCommand::print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) {
  Columns columns({"network", "stream", "service", "name", "provider", "type", "status", "access"});
  for (auto const& [key, service] : catalogue.services()) {
    columns.add({numbered(sivane::get_original_network_id, key.original_network),
                 std::to_string(key.transport_stream), std::to_string(key.service), service.name,
                 service.provider, type_text(service.type), running_text(service.running_status),
                 access_text(service, catalogue.ca_systems(key))});
  }
  if (!columns.empty()) columns.print(out);
  return !columns.empty();
}

}  // namespace inspect
