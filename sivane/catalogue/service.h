// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/network.h>
#include <sivane/registry/codes.h>

#include <string>
#include <vector>

namespace sivane::catalogue {

/// A service as an SDT describes it (ETSI EN 300 468, 5.2.3).
struct Service {
  std::string name;                    ///< UTF-8
  std::string provider;                ///< UTF-8
  std::vector<LocalName> names;        ///< in several languages
  int type = -1;                       ///< service_type, 8 bits; -1 without a service descriptor
  int running_status = 0;              ///< 3 bits, as coded
  bool is_scrambled = false;           ///< free_CA_mode
  bool has_schedule = false;           ///< its schedule is in this transport stream
  bool has_present_following = false;  ///< its present and following event are in this transport stream
  bool is_actual = false;              ///< it is in the transport stream that is read
  std::string default_authority;       ///< of its content identifiers; empty where the SDT tells none
  std::vector<int> ca_systems;         ///< that its CA identifier descriptors name, 16 bits each, rising
  /// Of its type, in plain words; null where that is reserved or a user's own.
  char const* type_name() const { return service_type_name(type); }
  /// The members, as they are compared.
  auto tied() const {
    return std::tie(name, provider, names, type, running_status, is_scrambled, has_schedule,
                    has_present_following, is_actual, default_authority, ca_systems);
  }
};

}  // namespace sivane::catalogue
