// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/events.h"

#include <chrono>
#include <optional>
#include <ostream>
#include <set>
#include <string>

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

}  // namespace

void EventsCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x4D});  // service, short event
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
  if (!columns.empty()) columns.print(out);
  return !columns.empty();
}

}  // namespace inspect
