// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the events, and which are on now.
#pragma once

#include <sivane/catalogue/book.h>
#include <sivane/catalogue/event.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/rst.h>

#include <map>

namespace sivane::catalogue {

class EventBook {
 public:
  /// The events of the present and following table; -1 for none.
  struct Now {
    int present = -1;
    int following = -1;
  };

  Taken take(Eit const& eit, Desk& desk);
  void take(Rst const& rst, Desk& desk);
  /// Takes those away that no table names any more.
  void drop(SubTableKey table, Names const& gone, Desk& desk);
  void forget_before(Time time, Desk& desk);

  Book<EventKey, Event> const& events() const { return events_; }
  Now now(ServiceKey const& service) const;

 private:
  bool take(Eit::EventInfo const& info, EventKey const& key, bool is_schedule, Desk& desk);
  void take_now(Eit const& eit, ServiceKey const& service, Desk& desk);

  Book<EventKey, Event> events_;
  std::map<ServiceKey, Now> now_;
};

}  // namespace sivane::catalogue
