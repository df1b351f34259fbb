// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>
#include <sivane/tables/pmt.h>
#include <sivane/tables/sdt.h>

#include <compare>
#include <map>
#include <set>
#include <string>

#include "tables/table.h"

namespace inspect {

/// What makes a service one of its kind.
struct ServiceId {
  int original_network, transport_stream, service;
  auto operator<=>(ServiceId const&) const = default;
};

struct Service {
  int type = -1;  ///< -1 without a service descriptor
  std::string name, provider;
  int running_status = 0;
  bool is_scrambled = false;
  std::set<int> ca_systems;  ///< that the SDT names
};

/// The services of a stream and of those that it tells of. What was sent last counts.
class ServiceList {
 public:
  /// Takes what there is in an SDT or, for the CA systems of programs, in a PMT.
  void take(Table const& table, sivane::charset::Converter& texts);

  std::map<ServiceId, Service> const& all() const { return services_; }
  /// The CA systems that the SDT or the program map names.
  std::set<int> ca_systems_of(ServiceId const& id) const;
  /// Empty where the service is not known.
  std::string name_of(ServiceId const& id) const;

 private:
  void take(sivane::Sdt const& sdt, sivane::charset::Converter& texts);

  std::map<ServiceId, Service> services_;
  std::map<int, std::set<int>> programs_;  // their CA systems
  std::set<int> own_streams_;              // ids of what is described as the actual transport stream
};

}  // namespace inspect
