// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Registered names, looked up in the library and in maps that a host could fill with the same rows.
#include <sivane/registry/registry.h>
#include <sivane/registry/tables.h>

#include <map>
#include <random>
#include <string_view>

#include "compare.h"

namespace {

using Map = std::map<int, int>;

/// The last row of each id.
template <class Id>
Map map_of(sivane::registry::Table<Id> const& table) {
  Map map;
  for (std::size_t row = 0; row < table.ids.size(); ++row) {
    map[static_cast<int>(table.ids[row])] = static_cast<int>(row);
  }
  return map;
}

/// 100,000 of the map's ids in no order.
std::vector<int> ids_of(Map const& map) {
  std::vector<int> all;
  for (auto const& [id, row] : map) all.push_back(id);
  std::minstd_rand random(1);
  std::vector<int> ids;
  while (ids.size() < 100000) ids.push_back(all[random() % all.size()]);
  return ids;
}

template <class Id>
void look_up(benchmark::State& state, char const* (*name_of)(int), sivane::registry::Table<Id> const& table) {
  sivane::init();
  Map const map = map_of(table);
  std::vector<int> const ids = ids_of(map);
  std::size_t ours = 0;
  std::size_t theirs = 0;
  auto const sum = [&ids](auto find) {
    std::size_t letters = 0;
    for (int const id : ids) letters += static_cast<unsigned char>(*find(id));
    return letters;
  };
  sivane::bench::compare(
      state, 0, "the time of std::map<int, int>::find", [&] { ours = sum(name_of); },
      [&] {
        theirs = sum([&](int id) { return table.name(static_cast<std::size_t>(map.find(id)->second)); });
      });
  if (ours != theirs) state.SkipWithError("other names were found");
}

void network(benchmark::State& state) { look_up(state, sivane::get_network_id, sivane::registry::network()); }
void ca_system(benchmark::State& state) {
  look_up(state, sivane::get_ca_system_id, sivane::registry::ca_system());
}
void mhp(benchmark::State& state) { look_up(state, sivane::get_mhp_id, sivane::registry::mhp()); }

void fill_maps(benchmark::State& state) {
  std::size_t entries = 0;
  sivane::bench::compare(
      state, 0, "the time of a million calls of init",
      [&] {
        entries = map_of(sivane::registry::network()).size() + map_of(sivane::registry::ca_system()).size() +
                  map_of(sivane::registry::mhp()).size() + map_of(sivane::registry::private_data()).size() +
                  map_of(sivane::registry::data_broadcast()).size() +
                  map_of(sivane::registry::original_network()).size() +
                  map_of(sivane::registry::bouquet()).size();
      },
      [] {
        for (int i = 0; i < 1000000; ++i) sivane::init();
      });
  if (entries != 15582) state.SkipWithError("the maps are not complete");
}

}  // namespace

BENCHMARK(network)->Name("100,000 names of networks")->Apply(sivane::bench::timed_by_hand);
BENCHMARK(ca_system)->Name("100,000 names of CA systems")->Apply(sivane::bench::timed_by_hand);
BENCHMARK(mhp)->Name("100,000 names of MHP organisations")->Apply(sivane::bench::timed_by_hand);
BENCHMARK(fill_maps)
    ->Name("filling and freeing a std::map for each registry")
    ->Apply(sivane::bench::timed_by_hand);
