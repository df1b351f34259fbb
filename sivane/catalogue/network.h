// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/keys.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace sivane::catalogue {

/// Where and how a transport stream is sent, by a delivery system descriptor (ETSI EN 300 468, 6.2.13). What
/// its system does not have stays 0.
struct Delivery {
  /// The descriptor that tells it. Those of S2 complete the one of the satellite.
  enum class System { satellite, cable, terrestrial, satellite_s2, satellite_s2x, terrestrial_t2, cable_c2 };

  System system = System::satellite;  ///< by the descriptor
  std::optional<double> frequency;    ///< in Hz; none where a list of frequencies tells
  double symbol_rate = 0;             ///< in symbols a second; satellite and cable
  double bandwidth = 0;               ///< in Hz; terrestrial, 0 where reserved
  double orbital_position = 0;        ///< in degrees; satellite
  bool is_east = false;               ///< of Greenwich; satellite
  int polarization = 0;               ///< 2 bits, as coded; satellite
  int modulation = 0;       ///< as coded: satellite 5 bits, cable 8 bits, terrestrial the constellation's 2
  int inner_code = 0;       ///< as coded: FEC_inner of 4 bits, terrestrial code_rate_HP_stream of 3
  int guard_interval = -1;  ///< as coded: terrestrial 2 bits, T2 and C2 3 bits; -1 where none is given
  int transmission_mode = -1;    ///< as coded: terrestrial 2 bits, T2 3 bits; -1 where none is given
  double roll_off = 0;           ///< factor of S2X; 0 where reserved
  int plp = -1;                  ///< physical layer pipe of T2 and C2, 8 bits
  int t2_system = -1;            ///< T2_system_id, 16 bits
  int data_slice = -1;           ///< of C2, 8 bits
  int input_stream = -1;         ///< input_stream_identifier of S2 and S2X, 8 bits; -1 where none is given
  int scrambling_sequence = -1;  ///< scrambling_sequence_index of S2 and S2X, 18 bits; -1 where none is given

  /// The members, as they are compared.
  auto tied() const {
    return std::tie(system, frequency, symbol_rate, bandwidth, orbital_position, is_east, polarization,
                    modulation, inner_code, guard_interval, transmission_mode, roll_off, plp, t2_system,
                    data_slice, input_stream, scrambling_sequence);
  }
};

/// A service as a list of a network names it.
struct ListedService {
  int service = 0;  ///< service_id, 16 bits
  int type = 0;     ///< service_type, 8 bits
  /// The members, as they are compared.
  auto tied() const { return std::tie(service, type); }
};

/// The place of a service in the viewer's list, in the forms of EACEM and NorDig.
struct ChannelNumber {
  int service = 0;               ///< service_id, 16 bits
  int number = 0;                ///< logical_channel_number, 10 or 14 bits
  bool is_visible = true;        ///< false where viewers are not shown it
  bool is_hd_simulcast = false;  ///< for receivers of high definition alone, which show it in its place
  /// The members, as they are compared.
  auto tied() const { return std::tie(service, number, is_visible, is_hd_simulcast); }
};

/// What a network or bouquet says of a transport stream.
struct TransportStream {
  std::vector<Delivery> deliveries;            ///< in the order of systems in `Delivery::System`
  std::vector<ListedService> services;         ///< in the order of the lists
  std::vector<ChannelNumber> channel_numbers;  ///< in the order of the descriptors
  std::string default_authority;               ///< of its services' content identifiers; empty without
  std::vector<int> ca_systems;                 ///< that its entry names, 16 bits each, rising
  /// The members, as they are compared.
  auto tied() const { return std::tie(deliveries, services, channel_numbers, default_authority, ca_systems); }
};

/// A name in one language.
struct LocalName {
  std::string language;  ///< ISO 639 code
  std::string name;      ///< UTF-8
  std::string provider;  ///< UTF-8; of services alone
  /// The members, as they are compared.
  auto tied() const { return std::tie(language, name, provider); }
};

/// A network or a bouquet, by its own loop.
struct Network {
  std::string name;               ///< UTF-8; empty where it has none
  std::vector<LocalName> names;   ///< in several languages
  bool is_actual = false;         ///< it is the one that sends what is read; of networks alone
  std::string default_authority;  ///< of its services' content identifiers; empty where it tells none
  std::vector<int> ca_systems;    ///< that its own loop names, 16 bits each, rising
  /// The members, as they are compared.
  auto tied() const { return std::tie(name, names, is_actual, default_authority, ca_systems); }
};

}  // namespace sivane::catalogue
