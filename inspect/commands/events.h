// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/tables/eit.h>

#include <map>
#include <ostream>
#include <utility>

#include "commands/command.h"
#include "commands/service_list.h"

namespace inspect {

/// Lists the events that the EITs announce, by service and time.
class EventsCommand final : public Command {
 public:
  explicit EventsCommand(Showing const& showing) : out_(showing.out), texts_(showing.charset) {}
  void finish() override;

 private:
  struct Event {
    sivane::DateTime start;
    sivane::Duration duration;
    std::string name;
  };

  void show(Section const& section) override;
  void choose_tags(sivane::ParseOptions& options) const override;
  void take(sivane::Eit const& eit);

  std::ostream& out_;
  sivane::charset::Converter texts_;
  ServiceList services_;
  std::map<std::pair<ServiceId, int>, Event> events_;  // by service and event id; what was sent last counts
};

}  // namespace inspect
