// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <map>
#include <ostream>
#include <set>
#include <string>
#include <utility>

#include "commands/command.h"

namespace inspect {

/// Lists networks and bouquets with their transport streams, and the CA systems that any table names.
class NetworksCommand final : public Command {
 public:
  explicit NetworksCommand(Showing const& showing) : out_(showing.out), texts_(showing.charset) {}
  void finish() override;

 private:
  struct Group {
    std::string name;
    std::map<std::pair<int, int>, std::string> streams;  // by original network and transport stream: delivery
  };

  /// What networks and bouquets differ in.
  struct Kind {
    std::string name;
    char const* (*lookup)(int);
    std::string year;  // of the list that the lookup reads
  };

  void show(Section const& section) override;
  void choose_tags(sivane::ParseOptions& options) const override;
  template <class Table>
  void take_group(Table const& table, Group& group);
  static std::string title(Kind const& kind, int id, std::string const& name);
  template <class Groups>
  void print(Groups const& groups, Kind const& kind) const;

  std::ostream& out_;
  sivane::charset::Converter texts_;
  std::map<int, Group> networks_;
  std::map<int, Group> bouquets_;
  std::set<int> ca_systems_;
};

}  // namespace inspect
