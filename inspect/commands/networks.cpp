// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/networks.h"

#include <sivane/sivane.h>

#include <iomanip>
#include <ostream>
#include <sstream>

#include "console.h"
#include "text/names.h"
#include "text/terminal.h"

namespace inspect {

namespace {

constexpr double hertz_in_units_of_ten = 10;
constexpr int digits_of_frequencies = 9;  // as many as a descriptor has

void write(std::ostream& text, sivane::DescriptorSatelliteDeliverySystem const& d) {
  text << "satellite " << d.orbital_position << (d.west_east_flag != 0 ? " E, " : " W, ") << d.frequency
       << " GHz " << d.get_polarization_text() << ", " << d.symbol_rate << " Msymbol/s, FEC "
       << d.get_FEC_inner_text();
}

void write(std::ostream& text, sivane::DescriptorCableDeliverySystem const& d) {
  text << "cable " << d.frequency << " MHz, " << d.symbol_rate << " Msymbol/s";
  constexpr int last_modulation = 5;
  if (d.modulation >= 1 && d.modulation <= last_modulation) text << ", " << (8 << d.modulation) << "-QAM";
}

void write(std::ostream& text, sivane::DescriptorTerrestrialDeliverySystem const& d) {
  constexpr unsigned long undefined =
      0xFFFFFFFF;  // where a list of frequencies tells (ETSI EN 300 468, 6.2.13.4)
  if (d.centre_frequency == undefined) {
    text << "terrestrial, frequency undefined";
  } else {
    text << "terrestrial " << static_cast<double>(d.centre_frequency) * hertz_in_units_of_ten / 1e6 << " MHz";
  }
  constexpr int widest = 8, last_bandwidth = 3;
  if (d.bandwidth <= last_bandwidth) text << ", " << widest - d.bandwidth << " MHz wide";
}

template <class Descriptors>
void write_each(std::ostream& text, Descriptors const& descriptors) {
  for (auto const& descriptor : descriptors) write(text << ": ", descriptor);
}

std::string delivery_of(sivane::DescriptorSet const& entry) {
  std::ostringstream text;
  text.exceptions(std::ios::badbit);
  text << std::setprecision(digits_of_frequencies);
  write_each(text, entry.get_satellite_delivery_system_descriptors());
  write_each(text, entry.get_cable_delivery_system_descriptors());
  write_each(text, entry.get_terrestrial_delivery_system_descriptors());
  return text.str();
}

std::string name_of(sivane::Nit const& nit, sivane::charset::Converter& texts) {
  auto const& names = nit.get_network_name_descriptors();
  return names.empty() ? std::string() : texts.utf8(names.front().network_name);
}

std::string name_of(sivane::Bat const& bat, sivane::charset::Converter& texts) {
  auto const& names = bat.get_bouquet_descriptors();
  return names.empty() ? std::string() : texts.utf8(names.front().bouquet_name);
}

void collect(std::vector<sivane::DescriptorCa> const& descriptors, std::set<int>& systems) {
  for (auto const& descriptor : descriptors) systems.insert(descriptor.sys_id);
}

void collect(sivane::DescriptorSet const& set, std::set<int>& systems) {
  collect(set.get_CA_descriptors(), systems);
  for (auto const& descriptor : set.get_CA_identifiers_descriptors()) {
    for (auto const& system : descriptor.CA_system_id) systems.insert(system.CA_system_id);
  }
}

}  // namespace

template <class Table>
void NetworksCommand::take_group(Table const& table, Group& group) {
  collect(table, ca_systems_);
  collect(table.ca_descriptors, ca_systems_);
  if (std::string const name = name_of(table, texts_); !name.empty()) group.name = name;
  for (auto const& stream : table.stream_infos) {
    group.streams[{stream.network_id, stream.stream_id}] = delivery_of(stream);
    collect(stream, ca_systems_);
  }
}

void NetworksCommand::choose_tags(sivane::ParseOptions& options) const {
  options.build_only({0x40, 0x47, 0x43, 0x44, 0x5A, 0x09, 0x53});  // names, delivery systems, CA
}

void NetworksCommand::show(Section const& section) {
  auto const table = table_of(section);
  if (!table) return;
  if (auto const* const nit = current_as<sivane::Nit>(*table)) take_group(*nit, networks_[nit->context_id]);
  if (auto const* const bat = current_as<sivane::Bat>(*table)) take_group(*bat, bouquets_[bat->context_id]);
  if (auto const* const cat = current_as<sivane::Cat>(*table)) collect(*cat, ca_systems_);
  if (auto const* const sdt = current_as<sivane::Sdt>(*table)) {
    for (auto const& service : sdt->service_infos) collect(service, ca_systems_);
  }
  if (auto const* const pmt = current_as<sivane::Pmt>(*table)) {
    collect(*pmt, ca_systems_);
    for (auto const& stream : pmt->stream_infos) collect(stream, ca_systems_);
  }
}

/// Numbers change hands: where a group does not call itself what it was registered as, the list's year is
/// told.
std::string NetworksCommand::title(Kind const& kind, int id, std::string const& name) {
  if (name.empty()) return kind.name + ' ' + numbered(kind.lookup, id);
  std::string const registered = registered_name(kind.lookup, id);
  std::string title = kind.name + ' ' + std::to_string(id);
  if (registered == name) title += " (" + registered + ")";
  if (!registered.empty() && registered != name)
    title += " (registered in " + kind.year + ": " + registered + ")";
  return title + ": " + name;
}

template <class Groups>
void NetworksCommand::print(Groups const& groups, Kind const& kind) const {
  for (auto const& [id, group] : groups) {
    out_ << for_terminal(title(kind, id, group.name)) << '\n';
    for (auto const& [stream, delivery] : group.streams) {
      out_ << for_terminal("  stream " + std::to_string(stream.second) + " of network " +
                           numbered(sivane::get_original_network_id, stream.first) + delivery)
           << '\n';
    }
  }
}

void NetworksCommand::finish() {
  print(networks_, {"network", sivane::get_network_id, "2008"});
  print(bouquets_, {"bouquet", sivane::get_bouquet_id, "2003"});
  for (int const id : ca_systems_) {
    out_ << for_terminal("CA system " + numbered_ca_system(id)) << '\n';
  }
  if (networks_.empty() && bouquets_.empty() && ca_systems_.empty()) note("no network is described");
}

}  // namespace inspect
