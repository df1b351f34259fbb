// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/sivane.h>

#include <cstddef>
#include <map>
#include <set>

#include "check/observation.h"

namespace inspect {

/// So many programs are followed, and as many services: what they name is gone through with each table that
/// changes.
inline constexpr std::size_t most_followed = 512;

/// A service as an SDT of the actual stream tells of it.
struct AnnouncedService {
  int service, transport_stream, original_network;
  auto operator<=>(AnnouncedService const&) const = default;
};

/// What the tables that apply now say about the stream that they are in.
class StreamTables {
 public:
  struct Program {
    int map_pid = 0;
    int pcr_pid = -1;          ///< -1 before the program map has come
    std::set<int> timed_pids;  ///< of video and audio
    std::set<int> other_pids;  ///< of all else
    std::set<int> ca_pids;     ///< of entitlement control messages
  };

  /// True if the section has changed anything.
  bool take(Observation const& observation);

  bool has_pat() const { return has_pat_; }
  bool has_cat() const { return has_cat_; }
  bool has_all_maps() const;
  /// Whether the limits of terrestrial networks hold: also where no NIT says what it is.
  bool counts_as_terrestrial() const { return is_terrestrial_ || !knows_network_; }
  std::map<int, Program> const& programs() const { return programs_; }
  /// Those that are said to have an EIT p/f.
  std::set<AnnouncedService> const& services() const { return services_; }
  /// Whether a table names the PID.
  bool names(int pid) const { return named_.contains(pid); }

 private:
  void take(sivane::Pat const& pat);
  void take(sivane::Pmt const& pmt);
  void take(sivane::Cat const& cat);
  void take(sivane::Nit const& nit);
  void take(sivane::Sdt const& sdt);
  template <class Class>
  bool parse_as(Observation const& observation);
  bool is_map_of_program(Observation const& observation) const;
  void collect_names();

  bool follows_all_programs_ = true;
  bool has_pat_ = false, has_cat_ = false, is_terrestrial_ = false, knows_network_ = false;
  int pat_version_ = -1, sdt_version_ = -1;
  std::map<int, Program> programs_;
  std::set<int> management_pids_;  // of entitlement management messages
  std::set<int> network_pids_;
  std::set<AnnouncedService> services_;
  std::set<int> named_;
};

}  // namespace inspect
