// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: networks or bouquets, and their transport streams.
#pragma once

#include <sivane/catalogue/book.h>
#include <sivane/catalogue/network.h>
#include <sivane/tables/bat.h>
#include <sivane/tables/nit.h>

#include <set>
#include <utility>
#include <vector>

namespace sivane::catalogue {

/// `Key` and `EntryKey` are those of a network or those of a bouquet.
template <class Key, class EntryKey>
class NetworkBook {
 public:
  /// `starts_anew` says that the section is the first of its version.
  template <class Table>
  Taken take(Table const& table, bool starts_anew, Desk& desk);
  /// Takes those streams away that no table of the network names any more.
  void drop(SubTableKey table, Names const& gone, Desk& desk);

  Book<Key, Network> const& networks() const { return networks_; }
  Book<EntryKey, TransportStream> const& streams() const { return streams_; }
  /// The networks, by id, that tell of the stream, and what they tell.
  std::vector<std::pair<Key, TransportStream const*>> telling_of(StreamKey const& stream) const;

 private:
  bool put(EntryKey const& key, TransportStream stream, Desk& desk);
  void erase(EntryKey const& key, Desk& desk);

  Book<Key, Network> networks_;
  Book<EntryKey, TransportStream> streams_;
  std::set<std::pair<StreamKey, int>> by_stream_;  // the keys of streams_ the other way round
};

using Networks = NetworkBook<NetworkKey, NetworkStreamKey>;
using Bouquets = NetworkBook<BouquetKey, BouquetStreamKey>;

extern template class NetworkBook<NetworkKey, NetworkStreamKey>;
extern template Taken Networks::take(Nit const&, bool, Desk&);
extern template class NetworkBook<BouquetKey, BouquetStreamKey>;
extern template Taken Bouquets::take(Bat const&, bool, Desk&);

}  // namespace sivane::catalogue
