// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What makes a network, a transport stream, a service or an event one of its kind (ETSI EN 300 468, 5.2; ETSI
// TR 101 211, 4). All numbers are of 16 bits.
#pragma once

#include <sivane/catalogue/compared.h>

#include <tuple>

namespace sivane::catalogue {

/// A network, by network_id.
struct NetworkKey {
  int network = 0;  ///< network_id
  /// The members, as they are compared.
  auto tied() const { return std::tie(network); }
};

/// A bouquet, by bouquet_id.
struct BouquetKey {
  int bouquet = 0;  ///< bouquet_id
  /// The members, as they are compared.
  auto tied() const { return std::tie(bouquet); }
};

/// A transport stream.
struct StreamKey {
  int original_network = 0;  ///< original_network_id
  int transport_stream = 0;  ///< transport_stream_id
  /// The members, as they are compared.
  auto tied() const { return std::tie(original_network, transport_stream); }
};

/// A transport stream as an entry of a network.
struct NetworkStreamKey {
  int network = 0;   ///< network_id
  StreamKey stream;  ///< that the network tells of
  /// The members, as they are compared.
  auto tied() const { return std::tie(network, stream); }
};

/// A transport stream as an entry of a bouquet.
struct BouquetStreamKey {
  int bouquet = 0;   ///< bouquet_id
  StreamKey stream;  ///< that the bouquet tells of
  /// The members, as they are compared.
  auto tied() const { return std::tie(bouquet, stream); }
};

/// A service.
struct ServiceKey {
  int original_network = 0;  ///< original_network_id
  int transport_stream = 0;  ///< transport_stream_id
  int service = 0;           ///< service_id, which is the program_number of its program
  /// The transport stream that carries it.
  StreamKey stream() const { return {original_network, transport_stream}; }
  /// The members, as they are compared.
  auto tied() const { return std::tie(original_network, transport_stream, service); }
};

/// A program of the stream that is read.
struct ProgramKey {
  int number = 0;  ///< program_number
  /// The members, as they are compared.
  auto tied() const { return std::tie(number); }
};

/// An event of a service.
struct EventKey {
  ServiceKey service;  ///< that shows it
  int event = 0;       ///< event_id
  /// The members, as they are compared.
  auto tied() const { return std::tie(service, event); }
};

/// What the CAT says: there is one of it.
struct AccessKey {
  /// The members, as they are compared: none.
  auto tied() const { return std::tuple<>(); }
};

}  // namespace sivane::catalogue
