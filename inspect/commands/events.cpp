// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/events.h"

#include <chrono>
#include <iterator>
#include <optional>
#include <ostream>
#include <set>
#include <string>

#include "text/hexadecimal.h"
#include "text/terminal.h"
#include "text/times.h"

namespace inspect {

namespace {

using sivane::catalogue::Catalogue;
using sivane::catalogue::ServiceKey;

std::set<ServiceKey> services_with_events(Catalogue const& catalogue) {
  std::set<ServiceKey> services;
  for (auto const& [key, event] : catalogue.events()) services.insert(services.end(), key.service);
  return services;
}

std::string service_text(Catalogue const& catalogue, ServiceKey const& key) {
  auto const* const service = catalogue.find(key);
  std::string const number = std::to_string(key.service);
  return service == nullptr || service->name.empty() ? number : number + ' ' + service->name;
}

std::string content_text(int crid_type) {
  constexpr char const* texts[] = {"-", "programme", "series", "recommendation"};
  return static_cast<std::size_t>(crid_type) < std::size(texts) ? texts[crid_type]
                                                                : c_hexadecimal(crid_type, 1);
}

/// Below the events, with an empty line between; nothing where none has a content identifier.
void print_content_ids(Catalogue const& catalogue, std::ostream& out) {
  Columns columns({"service", "event", "content", "identifier"});
  for (ServiceKey const& service : services_with_events(catalogue)) {
    std::string const name = service_text(catalogue, service);
    std::string const authority = catalogue.default_authority(service);
    for (auto const* const entry : catalogue.events_of(service)) {
      for (auto const& id : entry->second.content_ids)
        columns.add({name, entry->second.title(), content_text(id.type), id.uri(authority)});
    }
  }
  if (columns.empty()) return;
  out << '\n';
  columns.print(out);
}

}  // namespace

void EventsCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only(
      {0x48, 0x4D, 0x73, 0x76});  // service, short event, default authority, content identifier
}

bool EventsCommand::print(Catalogue const& catalogue, std::ostream& out) {
  Columns columns({"start (UTC)", "duration", "service", "event"});
  for (ServiceKey const& service : services_with_events(catalogue)) {
    std::string const name = service_text(catalogue, service);
    for (auto const* const entry : catalogue.events_of(service)) {
      sivane::catalogue::Event const& event = entry->second;
      columns.add({event.start ? date_text(*event.start) : "-",
                   event.duration ? clock_text(*event.duration) : "-", name, event.title()});
    }
  }
  if (columns.empty()) return false;
  columns.print(out);
  print_content_ids(catalogue, out);
  return true;
}

}  // namespace inspect
