// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/networks.h"

#include <sivane/sivane.h>

#include <ostream>
#include <set>

#include "text/deliveries.h"
#include "text/names.h"
#include "text/terminal.h"

namespace inspect {

namespace {

using namespace sivane::catalogue;

/// What networks and bouquets differ in.
struct Kind {
  std::string name;
  char const* (*lookup)(int);
  std::string year;  // of the list that the lookup reads
};

/// Numbers change hands: where a group does not call itself what it was registered as, the list's year is
/// told.
std::string title(Kind const& kind, int id, std::string const& name) {
  if (name.empty()) return kind.name + ' ' + numbered(kind.lookup, id);
  std::string const registered = registered_name(kind.lookup, id);
  std::string title = kind.name + ' ' + std::to_string(id);
  if (registered == name) title += " (" + registered + ")";
  if (!registered.empty() && registered != name)
    title += " (registered in " + kind.year + ": " + registered + ")";
  return title + ": " + name;
}

bool is_of_first_generation(Delivery const& delivery) {
  using System = Delivery::System;
  return delivery.system == System::satellite || delivery.system == System::cable ||
         delivery.system == System::terrestrial;
}

/// The delivery systems of the second generation have lines of their own.
std::string stream_lines(StreamKey const& key, TransportStream const& stream) {
  std::string line = "  stream " + std::to_string(key.transport_stream) + " of network " +
                     numbered(sivane::get_original_network_id, key.original_network);
  std::string further;
  for (Delivery const& delivery : stream.deliveries) {
    bool const is_first = is_of_first_generation(delivery);
    (is_first ? line : further) += (is_first ? ": " : "\n    ") + delivery_text(delivery);
  }
  return line + further;
}

/// Streams stand in the order of their groups.
template <class Groups, class Streams>
void print_groups(Groups const& groups, Streams const& streams, Kind const& kind, std::ostream& out) {
  auto stream = streams.begin();
  for (auto const& [key, group] : groups) {
    auto const [id] = key.tied();
    out << for_terminal(title(kind, id, group.name)) << '\n';
    for (; stream != streams.end() && std::get<0>(stream->first.tied()) == id; ++stream) {
      out << for_terminal(stream_lines(stream->first.stream, stream->second)) << '\n';
    }
  }
}

void collect(std::vector<ConditionalAccess> const& access, std::set<int>& systems) {
  for (ConditionalAccess const& one : access) systems.insert(one.system);
}

template <class Entries>
void collect_of(Entries const& entries, std::set<int>& systems) {
  for (auto const& [key, entry] : entries) systems.insert(entry.ca_systems.begin(), entry.ca_systems.end());
}

std::set<int> all_ca_systems(Catalogue const& catalogue) {
  std::set<int> systems;
  collect(catalogue.access(), systems);
  collect_of(catalogue.networks(), systems);
  collect_of(catalogue.network_streams(), systems);
  collect_of(catalogue.bouquets(), systems);
  collect_of(catalogue.bouquet_streams(), systems);
  collect_of(catalogue.services(), systems);
  for (auto const& [key, program] : catalogue.programs()) {
    collect(program.access, systems);
    for (ElementaryStream const& stream : program.streams) collect(stream.access, systems);
  }
  return systems;
}

}  // namespace

void NetworksCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x40, 0x47, 0x43, 0x44, 0x5A, 0x79, 0x7F, 0x09, 0x53});  // names, delivery systems, CA
}

bool NetworksCommand::print(Catalogue const& catalogue, std::ostream& out) {
  print_groups(catalogue.networks(), catalogue.network_streams(), {"network", sivane::get_network_id, "2008"},
               out);
  print_groups(catalogue.bouquets(), catalogue.bouquet_streams(), {"bouquet", sivane::get_bouquet_id, "2003"},
               out);
  std::set<int> const systems = all_ca_systems(catalogue);
  for (int const id : systems) out << for_terminal("CA system " + numbered_ca_system(id)) << '\n';
  return !catalogue.networks().empty() || !catalogue.bouquets().empty() || !systems.empty();
}

}  // namespace inspect
