// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/state.h>
#include <sivane/catalogue/values.h>

#include <algorithm>

namespace sivane::catalogue {

std::map<NetworkKey, Network> const& Catalogue::networks() const { return state_->networks.networks().all(); }
std::map<NetworkStreamKey, TransportStream> const& Catalogue::network_streams() const {
  return state_->networks.streams().all();
}
std::map<BouquetKey, Network> const& Catalogue::bouquets() const { return state_->bouquets.networks().all(); }
std::map<BouquetStreamKey, TransportStream> const& Catalogue::bouquet_streams() const {
  return state_->bouquets.streams().all();
}
std::map<ServiceKey, Service> const& Catalogue::services() const { return state_->services.services().all(); }
std::map<ProgramKey, Program> const& Catalogue::programs() const { return state_->programs.programs().all(); }
std::map<EventKey, Event> const& Catalogue::events() const { return state_->events.events().all(); }
std::vector<ConditionalAccess> const& Catalogue::access() const { return state_->access; }
std::optional<Time> Catalogue::time() const { return state_->time; }
std::vector<LocalTimeOffset> const& Catalogue::local_time_offsets() const { return state_->local_times; }

Service const* Catalogue::find(ServiceKey const& key) const { return state_->services.services().find(key); }
Event const* Catalogue::find(EventKey const& key) const { return state_->events.events().find(key); }
Program const* Catalogue::find(ProgramKey const& key) const { return state_->programs.programs().find(key); }

std::vector<Catalogue::EventEntry const*> Catalogue::events_of(ServiceKey const& service) const {
  std::vector<EventEntry const*> found;
  auto const& all = events();
  for (auto entry = all.lower_bound({service, 0}); entry != all.end() && entry->first.service == service;
       ++entry) {
    found.push_back(&*entry);
  }
  auto const has_start = [](EventEntry const* entry) { return entry->second.start.has_value(); };
  auto const dated_end = std::stable_partition(found.begin(), found.end(), has_start);
  std::stable_sort(found.begin(), dated_end, [](EventEntry const* left, EventEntry const* right) {
    return left->second.start < right->second.start;
  });
  return found;
}

namespace {

Catalogue::EventEntry const* entry_of(std::map<EventKey, Event> const& events, ServiceKey const& service,
                                      int event) {
  auto const found = events.find({service, event});
  return found == events.end() ? nullptr : &*found;
}

}  // namespace

Catalogue::EventEntry const* Catalogue::present_event(ServiceKey const& service) const {
  return entry_of(events(), service, state_->events.now(service).present);
}

Catalogue::EventEntry const* Catalogue::following_event(ServiceKey const& service) const {
  return entry_of(events(), service, state_->events.now(service).following);
}

std::optional<ChannelNumber> Catalogue::channel_number(ServiceKey const& service) const {
  return state_->about(service.stream()).channel_number(service.service);
}

std::string Catalogue::default_authority(ServiceKey const& service) const {
  Service const* const described = find(service);
  if (described != nullptr && !described->default_authority.empty()) return described->default_authority;
  return state_->about(service.stream()).default_authority();
}

std::vector<int> Catalogue::ca_systems(ServiceKey const& service) const {
  Service const* const described = find(service);
  if (described == nullptr) return {};
  std::vector<int> systems = described->ca_systems;
  Program const* const program = described->is_actual ? find(ProgramKey{service.service}) : nullptr;
  if (program == nullptr) return systems;
  for (ConditionalAccess const& access : program->access) systems.push_back(access.system);
  for (ElementaryStream const& stream : program->streams) {
    for (ConditionalAccess const& access : stream.access) systems.push_back(access.system);
  }
  make_unique(systems);
  return systems;
}

}  // namespace sivane::catalogue
