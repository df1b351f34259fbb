// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors of networks and of what carries them (ETSI EN 300 468; clause numbers are those of V1.13.1).
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/foundation/multilingual_name_info.h>

#include <string>
#include <vector>

namespace sivane {

/// The network's name (6.2.27).
class SIVANE_API DescriptorNetworkName final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorNetworkName)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { network_name.clear(); }

  std::string network_name;  ///< raw, a character table selector included
};

/// Services by id and type (6.2.35). Throws "descriptor length mismatch" unless the length is 3n.
class SIVANE_API DescriptorServiceList final : public DescriptorBase {
 public:
  /// One service.
  class SIVANE_API ServiceList {
   public:
    SIVANE_RECORD(ServiceList)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int service_id = 0;    ///< 16 bits
    int service_type = 0;  ///< 8 bits, see `DescriptorService::get_service_type_text`
  };

  SIVANE_DESCRIPTOR(DescriptorServiceList)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  std::vector<ServiceList> servicelist;  ///< in the order of the descriptor
};

/// Bytes without a meaning (6.2.40).
class SIVANE_API DescriptorStuffing final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorStuffing)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { stuffing_byte.clear(); }

  std::vector<unsigned char> stuffing_byte;  ///< raw
};

/// Where a satellite transponder is (6.2.13.2). Its dump leaves the stream decimal.
class SIVANE_API DescriptorSatelliteDeliverySystem final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorSatelliteDeliverySystem)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}
  /// The text of `polarization`.
  char const* get_polarization_text() const;
  /// The text of `modulation`.
  char const* get_modulation_text() const;
  /// The text of `FEC_inner`.
  char const* get_FEC_inner_text() const { return get_FEC_inner_text(FEC_inner); }
  /// The text of a FEC_inner of 4 bits.
  static char const* get_FEC_inner_text(int fec);

  double frequency = 0;         ///< GHz, 8 BCD digits
  double orbital_position = 0;  ///< degrees, 4 BCD digits
  int west_east_flag = 0;       ///< 1 bit, 1 is east
  int polarization = 0;         ///< 2 bits
  int modulation = 0;           ///< 5 bits
  double symbol_rate = 0;       ///< Msymbol/s, 7 BCD digits
  int FEC_inner = 0;            ///< 4 bits
};

/// Where a cable channel is (6.2.13.1).
class SIVANE_API DescriptorCableDeliverySystem final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorCableDeliverySystem)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  double frequency = 0;    ///< MHz, 8 BCD digits
  int FEC_outer = 0;       ///< 4 bits
  int modulation = 0;      ///< 8 bits
  double symbol_rate = 0;  ///< Msymbol/s, 7 BCD digits
  int FEC_inner = 0;       ///< 4 bits
};

/// Where a terrestrial channel is, as raw code values (6.2.13.4).
class SIVANE_API DescriptorTerrestrialDeliverySystem final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorTerrestrialDeliverySystem)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  unsigned long centre_frequency = 0;  ///< 32 bits, in units of 10 Hz
  int bandwidth = 0;                   ///< 3 bits
  int constellation = 0;               ///< 2 bits
  int hierarchy_information = 0;       ///< 3 bits
  int code_rate_HP_stream = 0;         ///< 3 bits
  int code_rate_LP_stream = 0;         ///< 3 bits
  int guard_interval = 0;              ///< 2 bits
  int transmission_mode = 0;           ///< 2 bits
  int other_frequency_flag = 0;        ///< 1 bit
};

/// Further frequencies of a multiplex (6.2.17). Throws `item_length_error` unless the length is 1 + 4n.
class SIVANE_API DescriptorFrequencyList final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorFrequencyList)
  void _dump_state(std::ostream&) const override {}
  void _reset() override { centre_frequency.clear(); }
  /// The text of `coding_type`.
  char const* get_coding_type_text() const;

  int coding_type = 0;                          ///< 2 bits: what kind of frequencies these are
  std::vector<unsigned long> centre_frequency;  ///< 32 bits each, undecoded
};

/// The network's name in several languages (6.2.24). Throws `syntax_error` where the names do not end with
/// the descriptor, and what `MultilingualNameInfo` throws.
class SIVANE_API DescriptorMultilingualNetworkName final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorMultilingualNetworkName)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { nameinfo.clear(); }

  std::vector<MultilingualNameInfo> nameinfo;  ///< in the order of the descriptor
};

}  // namespace sivane
