// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/network_book.h>
#include <sivane/catalogue/network_reading.h>
#include <sivane/catalogue/table_ids.h>
#include <sivane/catalogue/values.h>

namespace sivane::catalogue {

namespace {

constexpr std::size_t link_footprint = node_footprint<std::pair<StreamKey, int>>();

std::string name_of(Nit const& nit, charset::Converter& text) {
  auto const& names = nit.get_network_name_descriptors();
  return names.empty() ? std::string() : text.utf8(names.front().network_name);
}

std::string name_of(Bat const& bat, charset::Converter& text) {
  auto const& names = bat.get_bouquet_descriptors();
  return names.empty() ? std::string() : text.utf8(names.front().bouquet_name);
}

std::vector<LocalName> local_names_of(Nit const& nit, charset::Converter& text) {
  auto const& names = nit.get_multilingual_network_name_descriptors();
  return names.empty() ? std::vector<LocalName>() : names_of(names.front().nameinfo, text);
}

std::vector<LocalName> local_names_of(Bat const& bat, charset::Converter& text) {
  auto const& names = bat.get_multilingual_bouquet_name_descriptors();
  return names.empty() ? std::vector<LocalName>() : names_of(names.front().nameinfo, text);
}

/// What the section tells takes the place of what is held. What it does not tell stays, unless it starts a
/// version.
template <class Table>
void read_head(Table const& table, bool starts_anew, charset::Converter& text, Network& network) {
  if (std::string name = name_of(table, text); !name.empty()) network.name = std::move(name);
  if (auto names = local_names_of(table, text); starts_anew || !names.empty())
    network.names = std::move(names);
  if (std::string authority = default_authority_of(table); starts_anew || !authority.empty())
    network.default_authority = std::move(authority);
  std::vector<int> systems = ca_systems_of(table, table.ca_descriptors);
  if (!starts_anew) systems.insert(systems.end(), network.ca_systems.begin(), network.ca_systems.end());
  make_unique(systems);
  network.ca_systems = std::move(systems);
  network.is_actual = table.table_id == actual_nit_id;
}

Name name_of(StreamKey const& key) {
  return static_cast<Name>(key.original_network) << 16 | static_cast<Name>(key.transport_stream);
}

StreamKey stream_named(Name name) { return {static_cast<int>(name >> 16), static_cast<int>(name & 0xFFFF)}; }

}  // namespace

template <class Key, class EntryKey>
template <class Table>
Taken NetworkBook<Key, EntryKey>::take(Table const& table, bool starts_anew, Desk& desk) {
  Taken taken;
  Key const key = {table.context_id};
  Network const* const known = networks_.find(key);
  Network network = known == nullptr ? Network() : *known;
  read_head(table, starts_anew, desk.text, network);
  taken.is_cut = !networks_.put(key, std::move(network), desk);
  for (auto const& entry : table.stream_infos) {
    StreamKey const stream = {entry.network_id, entry.stream_id};
    taken.add(name_of(stream), put({table.context_id, stream}, stream_of(entry), desk));
  }
  return taken;
}

template <class Key, class EntryKey>
bool NetworkBook<Key, EntryKey>::put(EntryKey const& key, TransportStream stream, Desk& desk) {
  std::size_t const more = streams_.find(key) == nullptr ? link_footprint : 0;
  if (!desk.budget.exchange(0, more)) return false;
  if (!streams_.put(key, std::move(stream), desk)) {
    desk.budget.free(more);
    return false;
  }
  by_stream_.insert({key.stream, std::get<0>(key.tied())});
  return true;
}

template <class Key, class EntryKey>
void NetworkBook<Key, EntryKey>::erase(EntryKey const& key, Desk& desk) {
  streams_.erase(key, desk);
  if (by_stream_.erase({key.stream, std::get<0>(key.tied())}) > 0) desk.budget.free(link_footprint);
}

template <class Key, class EntryKey>
std::vector<std::pair<Key, TransportStream const*>> NetworkBook<Key, EntryKey>::telling_of(
    StreamKey const& stream) const {
  std::vector<std::pair<Key, TransportStream const*>> telling;
  for (auto link = by_stream_.lower_bound({stream, 0}); link != by_stream_.end() && link->first == stream;
       ++link) {
    telling.push_back({Key{link->second}, streams_.find({link->second, stream})});
  }
  return telling;
}

template <class Key, class EntryKey>
void NetworkBook<Key, EntryKey>::drop(SubTableKey table, Names const& gone, Desk& desk) {
  int const network = static_cast<int>(table >> 32 & 0xFFFF);
  int const table_id = table_id_of(table);
  for (Name const name : gone) {
    bool const is_nit = table_id != bat_id;
    int const other = table_id == actual_nit_id ? other_nit_id : actual_nit_id;
    if (is_nit && desk.versions.has(with_table_id(table, other), name)) continue;
    erase({network, stream_named(name)}, desk);
  }
}

template class NetworkBook<NetworkKey, NetworkStreamKey>;
template Taken Networks::take(Nit const&, bool, Desk&);
template class NetworkBook<BouquetKey, BouquetStreamKey>;
template Taken Bouquets::take(Bat const&, bool, Desk&);

}  // namespace sivane::catalogue
