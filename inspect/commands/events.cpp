// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/events.h"

#include <sivane/sivane.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <tuple>
#include <vector>

#include "console.h"
#include "text/terminal.h"

namespace inspect {

namespace {

std::string two_digits(int number) { return std::to_string(number / 10) + std::to_string(number % 10); }

/// A time that is left open has all of its bits set, and no digits above 9 stand for one.
template <class Time>
bool is_open(Time const& time) {
  return time.hour > 99 || time.minute > 59 || time.second > 59;
}

/// Hours, minutes and seconds of a time or a duration.
template <class Time>
std::string clock_text(Time const& time) {
  return two_digits(time.hour) + ':' + two_digits(time.minute) + ':' + two_digits(time.second);
}

std::string start_text(sivane::DateTime const& start) {
  if (is_open(start)) return "-";
  return std::to_string(start.year) + '-' + two_digits(start.month) + '-' + two_digits(start.day) + ' ' +
         clock_text(start);
}

std::string duration_text(sivane::Duration const& duration) {
  return is_open(duration) ? "-" : clock_text(duration);
}

std::array<int, 6> by_time(sivane::DateTime const& t) {
  return {t.year, t.month, t.day, t.hour, t.minute, t.second};
}

/// The first that is there; null where there is none.
sivane::Text const* name_of(sivane::Eit::EventInfo const& event) {
  for (auto const& descriptor : event.get_short_event_descriptors()) {
    sivane::Text const& name = descriptor.event_name;
    if (!name.empty() || name.selector() >= 0) return &name;
  }
  return nullptr;
}

}  // namespace

void EventsCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48, 0x4D});  // service, short event
}

void EventsCommand::show(Section const& section) {
  auto const table = table_of(section);
  if (!table) return;
  services_.take(*table, texts_);
  if (auto const* const eit = current_as<sivane::Eit>(*table)) take(*eit);
}

void EventsCommand::take(sivane::Eit const& eit) {
  ServiceId const service{eit.original_network_id, eit.transport_stream_id, eit.context_id};
  for (auto const& info : eit.event_infos) {
    Event& event = events_[{service, info.event_id}];
    event.start = info.start_time;
    event.duration = info.duration;
    if (sivane::Text const* const name = name_of(info)) event.name = texts_.utf8(*name);
  }
}

void EventsCommand::finish() {
  using Entry = std::pair<std::pair<ServiceId, int> const, Event>;
  std::vector<Entry const*> sorted;
  for (Entry const& entry : events_) sorted.push_back(&entry);
  std::stable_sort(sorted.begin(), sorted.end(), [](Entry const* left, Entry const* right) {
    return std::make_tuple(left->first.first, by_time(left->second.start)) <
           std::make_tuple(right->first.first, by_time(right->second.start));
  });
  Columns columns({"start (UTC)", "duration", "service", "event"});
  for (Entry const* const entry : sorted) {
    auto const& [key, event] = *entry;
    std::string const name = services_.name_of(key.first);
    columns.add({start_text(event.start), duration_text(event.duration),
                 std::to_string(key.first.service) + (name.empty() ? "" : " " + name), event.name});
  }
  if (columns.empty()) {
    note("no event is announced");
  } else {
    columns.print(out_);
  }
}

}  // namespace inspect
