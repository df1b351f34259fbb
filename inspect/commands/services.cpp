// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/services.h"

#include <sivane/sivane.h>

#include <map>
#include <ostream>
#include <tuple>

#include "text/names.h"
#include "text/service_types.h"
#include "text/terminal.h"

namespace inspect {

using sivane::catalogue::Catalogue;
using sivane::catalogue::Service;
using sivane::catalogue::ServiceKey;

namespace {

std::string running_text(int status) {
  constexpr char const* texts[] = {"-", "not running", "starts soon", "pausing", "running", "off-air"};
  return static_cast<std::size_t>(status) < std::size(texts) ? texts[status] : "-";
}

std::string type_text(Service const& service) {
  std::string const text = service_type_text(service);
  return text.empty() ? "-" : text;
}

std::string shown_text(sivane::catalogue::ChannelNumber const& channel) {
  std::string const shown = channel.is_visible ? "yes" : "no";
  return channel.is_hd_simulcast ? shown + ", on HD receivers" : shown;
}

std::string access_text(Service const& service, std::vector<int> const& systems) {
  std::string const names = ca_systems({systems.begin(), systems.end()});
  if (!service.is_scrambled) return names.empty() ? "free" : "free (" + names + ")";
  return names.empty() ? "scrambled" : "scrambled (" + names + ")";
}

/// Below the services, with an empty line between; nothing where no network numbers channels.
void print_channels(Catalogue const& catalogue, std::ostream& out) {
  std::map<std::tuple<int, ServiceKey, bool>, std::string> channels;
  for (auto const& [key, stream] : catalogue.network_streams()) {
    for (auto const& channel : stream.channel_numbers) {
      ServiceKey const service = {key.stream.original_network, key.stream.transport_stream, channel.service};
      channels.try_emplace({channel.number, service, channel.is_hd_simulcast}, shown_text(channel));
    }
  }
  if (channels.empty()) return;
  Columns columns({"channel", "network", "stream", "service", "name", "shown"});
  for (auto const& [channel, shown] : channels) {
    auto const& [number, key, is_hd_simulcast] = channel;
    Service const* const service = catalogue.find(key);
    columns.add({std::to_string(number), std::to_string(key.original_network),
                 std::to_string(key.transport_stream), std::to_string(key.service),
                 service == nullptr ? "-" : service->name, shown});
  }
  out << '\n';
  columns.print(out);
}

}  // namespace

void ServicesCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x53, 0x09, 0x83, 0x87, 0x88});  // service, CA identifier, CA, channel numbers
}

bool ServicesCommand::print(sivane::catalogue::Catalogue const& catalogue, std::ostream& out) {
  Columns columns({"network", "stream", "service", "name", "provider", "type", "status", "access"});
  for (auto const& [key, service] : catalogue.services()) {
    columns.add({numbered(sivane::get_original_network_id, key.original_network),
                 std::to_string(key.transport_stream), std::to_string(key.service), service.name,
                 service.provider, type_text(service), running_text(service.running_status),
                 access_text(service, catalogue.ca_systems(key))});
  }
  if (columns.empty()) return false;
  columns.print(out);
  print_channels(catalogue, out);
  return true;
}

}  // namespace inspect
