// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/event_book.h>
#include <sivane/catalogue/event_reading.h>
#include <sivane/catalogue/table_ids.h>

#include <vector>

namespace sivane::catalogue {

namespace {

constexpr int running_undefined = 0;

ServiceKey service_of(Eit const& eit) {
  return {eit.original_network_id, eit.transport_stream_id, eit.context_id};
}

ServiceKey service_of(SubTableKey table) {
  auto const part = [table](int bits) { return static_cast<int>(table >> bits & 0xFFFF); };
  return {part(0), part(16), part(32)};
}

bool is_named(Versions const& versions, SubTableKey table, Name event) {
  for (int table_id = first_eit_id; table_id <= last_eit_id; ++table_id) {
    if (versions.has(with_table_id(table, table_id), event)) return true;
  }
  return false;
}

}  // namespace

Taken EventBook::take(Eit const& eit, Desk& desk) {
  Taken taken;
  ServiceKey const service = service_of(eit);
  for (Eit::EventInfo const& info : eit.event_infos) {
    bool const fits = take(info, {service, info.event_id}, is_schedule(eit.table_id), desk);
    taken.add(static_cast<Name>(info.event_id), fits);
  }
  if (!is_schedule(eit.table_id)) take_now(eit, service, desk);
  return taken;
}

/// Schedules leave the running status open that the present and following table tells.
bool EventBook::take(Eit::EventInfo const& info, EventKey const& key, bool is_schedule, Desk& desk) {
  Event event = event_of(info, desk.text);
  if (Event const* const known = events_.find(key)) {
    keep_texts(*known, event);
    if (is_schedule && event.running_status == running_undefined)
      event.running_status = known->running_status;
  }
  return events_.put(key, std::move(event), desk);
}

void EventBook::take_now(Eit const& eit, ServiceKey const& service, Desk& desk) {
  auto const known = now_.find(service);
  constexpr std::size_t size = 96;  // of an entry with its node
  if (known == now_.end() && !desk.budget.exchange(0, size)) return;
  Now& now = now_[service];
  int const event = eit.event_infos.empty() ? -1 : eit.event_infos.front().event_id;
  int& place = eit.section_number == 0 ? now.present : now.following;
  if (place == event) return;
  place = event;
  desk.changes.push_back({Change::Action::changed, service});
}

void EventBook::take(Rst const& rst, Desk& desk) {
  for (Rst::Status const& status : rst.status_infos) {
    EventKey const key = {{status.original_network_id, status.transport_stream_id, status.service_id},
                          status.event_id};
    Event const* const known = events_.find(key);
    if (known == nullptr) continue;
    Event event = *known;
    event.running_status = status.running_status;
    events_.put(key, std::move(event), desk);
  }
}

void EventBook::drop(SubTableKey table, Names const& gone, Desk& desk) {
  for (Name const event : gone) {
    if (!is_named(desk.versions, table, event)) {
      events_.erase({service_of(table), static_cast<int>(event)}, desk);
    }
  }
}

void EventBook::forget_before(Time time, Desk& desk) {
  std::vector<EventKey> past;
  for (auto const& [key, event] : events_.all()) {
    if (auto const end = event.end(); end && *end <= time) past.push_back(key);
  }
  for (EventKey const& key : past) events_.erase(key, desk);
}

EventBook::Now EventBook::now(ServiceKey const& service) const {
  auto const found = now_.find(service);
  return found == now_.end() ? Now() : found->second;
}

}  // namespace sivane::catalogue
