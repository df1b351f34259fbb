// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "commands/command.h"

namespace inspect {

/// Lists networks and bouquets with their transport streams, and the CA systems that any table names.
class NetworksCommand final : public Command {
 public:
  explicit NetworksCommand(std::ostream& out) : out_(out) {}
  void finish() override;

 private:
  struct Group {
    std::u32string name;
    std::map<std::pair<int, int>, std::u32string>
        streams;  // by original network and transport stream: delivery
  };

  void show(Section const& section) override;
  template <class Table>
  void take_group(Table const& table, Group& group);
  template <class Groups>
  void print(Groups const& groups, std::u32string const& kind, char const* (*lookup)(int)) const;

  std::ostream& out_;
  std::map<int, Group> networks_;
  std::map<int, Group> bouquets_;
  std::set<int> ca_systems_;
};

}  // namespace inspect
