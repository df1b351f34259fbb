// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/events.h"

#include <sivane/sivane.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <tuple>
#include <vector>

#include "commands/raw_events.h"
#include "console.h"
#include "text/dvb_text.h"
#include "text/terminal.h"

namespace inspect {

namespace {

std::u32string two_digits(int number) { return plain(number / 10) + plain(number % 10); }

/// A time that is left open has all of its bits set, and no digits above 9 stand for one.
template <class Time>
bool is_open(Time const& time) {
  return time.hour > 99 || time.minute > 59 || time.second > 59;
}

/// Hours, minutes and seconds of a time or a duration.
template <class Time>
std::u32string clock_text(Time const& time) {
  return two_digits(time.hour) + U':' + two_digits(time.minute) + U':' + two_digits(time.second);
}

std::u32string start_text(sivane::DateTime const& start) {
  if (is_open(start)) return U"-";
  return plain(start.year) + U'-' + two_digits(start.month) + U'-' + two_digits(start.day) + U' ' +
         clock_text(start);
}

std::u32string duration_text(sivane::Duration const& duration) {
  return is_open(duration) ? U"-" : clock_text(duration);
}

std::array<int, 6> by_time(sivane::DateTime const& t) {
  return {t.year, t.month, t.day, t.hour, t.minute, t.second};
}

}  // namespace

void EventsCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x48});  // service; the events' names are read from their bytes
}

void EventsCommand::show(Section const& section) {
  auto const table = table_of(section);
  if (!table) return;
  services_.take(*table);
  if (auto const* const eit = current_as<sivane::Eit>(*table)) take(*eit, section);
}

void EventsCommand::take(sivane::Eit const& eit, Section const& section) {
  ServiceId const service{eit.original_network_id, eit.transport_stream_id, eit.context_id};
  std::vector<std::string> const names = event_names(section.bytes);
  for (std::size_t i = 0; i < eit.event_infos.size(); ++i) {
    auto const& info = eit.event_infos[i];
    Event& event = events_[{service, info.event_id}];
    event.start = info.start_time;
    event.duration = info.duration;
    if (i < names.size() && !names[i].empty()) event.name = dvb_text(names[i]);
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
  Columns columns({U"start (UTC)", U"duration", U"service", U"event"});
  for (Entry const* const entry : sorted) {
    auto const& [key, event] = *entry;
    std::u32string const name = services_.name_of(key.first);
    columns.add({start_text(event.start), duration_text(event.duration),
                 plain(key.first.service) + (name.empty() ? U"" : U" " + name), event.name});
  }
  if (columns.empty()) {
    note("no event is announced");
  } else {
    columns.print(out_);
  }
}

}  // namespace inspect
