// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Delivery systems of the second generation, and what else tells a receiver how to tune (ETSI EN 300 468
// V1.17.1, 6.2.13 and 6.4; ETSI EN 301 192 V1.7.1).
#pragma once

#include <sivane/descriptors/extended/extended_descriptor.h>

#include <vector>

namespace sivane {

/// How a DVB-S2 signal differs from what its satellite delivery system descriptor tells (EN 300 468,
/// 6.2.13.3).
class SIVANE_API DescriptorS2SatelliteDeliverySystem final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorS2SatelliteDeliverySystem)

  bool scrambling_sequence_selector = false;  ///< 1 bit; whether an index is given
  bool multiple_input_stream_flag = false;    ///< 1 bit; whether an input stream identifier is given
  bool not_timeslice_flag = false;            ///< 1 bit
  int TS_GS_mode = 0;                         ///< 2 bits; 3 is a transport stream
  int scrambling_sequence_index = 0;          ///< 18 bits
  int input_stream_identifier = 0;            ///< 8 bits
  /// 8 bits, with `not_timeslice_flag` 0. Editions before V1.15.1 have a reserved bit in place of that flag
  /// and no number: it is read where a byte for it is left.
  int timeslice_number = 0;
};

/// A DVB-T2 signal: with a length of 4 which PLP of which T2 system alone, else how it is modulated and where
/// (EN 300 468, 6.4).
class SIVANE_API DescriptorT2DeliverySystem final : public ExtendedDescriptor {
 public:
  /// A frequency of a transposer within a cell.
  class SIVANE_API Subcell {
   public:
    SIVANE_RECORD(Subcell)

    int cell_id_extension = 0;              ///< 8 bits
    unsigned int transposer_frequency = 0;  ///< 32 bits, units of 10 Hz
  };

  /// Where a cell sends.
  class SIVANE_API Cell {
   public:
    SIVANE_RECORD(Cell)
    /// The same; with `tfs` there is a loop of frequencies.
    Cell(Reader& reader, bool tfs);

    int cell_id = 0;                              ///< 16 bits
    std::vector<unsigned long> centre_frequency;  ///< 32 bits each, units of 10 Hz; one where there is no TFS
    std::vector<Subcell> subcells;                ///< in the order of the descriptor
  };

  SIVANE_DESCRIPTOR(DescriptorT2DeliverySystem)
  void _reset() override { cells.clear(); }
  /// MHz of a `bandwidth` of 4 bits; 0 where it is reserved.
  static double get_bandwidth(int code);
  /// The text of a `transmission_mode` of 3 bits, such as "32k"; "reserved" where it is.
  static char const* get_transmission_mode_text(int mode);
  /// The text of a `guard_interval` of 3 bits, such as "19/256"; "reserved" where it is.
  static char const* get_guard_interval_text(int interval);

  int plp_id = 0;                     ///< 8 bits
  int T2_system_id = 0;               ///< 16 bits
  bool has_parameters = false;        ///< no field: whether anything below is given
  int SISO_MISO = 0;                  ///< 2 bits
  int bandwidth = 0;                  ///< 4 bits
  int guard_interval = 0;             ///< 3 bits
  int transmission_mode = 0;          ///< 3 bits
  bool other_frequency_flag = false;  ///< 1 bit
  bool tfs_flag = false;              ///< 1 bit; time-frequency slicing
  std::vector<Cell> cells;            ///< in the order of the descriptor
};

/// A DVB-SH signal (EN 300 468, 6.4).
class SIVANE_API DescriptorSHDeliverySystem final : public ExtendedDescriptor {
 public:
  /// One modulation. What is of the other kind of modulation or interleaver stays 0.
  class SIVANE_API Modulation {
   public:
    SIVANE_RECORD(Modulation)

    bool modulation_type = false;         ///< 1 bit; 0 TDM, 1 OFDM
    bool interleaver_presence = false;    ///< 1 bit
    bool interleaver_type = false;        ///< 1 bit; 0 in full, 1 the common multiplier alone
    int polarization = 0;                 ///< TDM, 2 bits
    int roll_off = 0;                     ///< TDM, 2 bits
    int modulation_mode = 0;              ///< TDM, 2 bits
    int code_rate = 0;                    ///< both, 4 bits
    int symbol_rate = 0;                  ///< TDM, 5 bits
    int bandwidth = 0;                    ///< OFDM, 3 bits
    int priority = 0;                     ///< OFDM, 1 bit
    int constellation_and_hierarchy = 0;  ///< OFDM, 3 bits
    int guard_interval = 0;               ///< OFDM, 2 bits
    int transmission_mode = 0;            ///< OFDM, 2 bits
    bool common_frequency = false;        ///< OFDM, 1 bit
    int common_multiplier = 0;            ///< any interleaver, 6 bits
    int nof_late_taps = 0;                ///< interleaver in full, 6 bits
    int nof_slices = 0;                   ///< interleaver in full, 6 bits
    int slice_distance = 0;               ///< interleaver in full, 8 bits
    int non_late_increments = 0;          ///< interleaver in full, 6 bits

   private:
    void read_tdm(Reader& reader);
    void read_ofdm(Reader& reader);
    void read_interleaver(Reader& reader);
  };

  SIVANE_DESCRIPTOR(DescriptorSHDeliverySystem)
  void _reset() override { modulations.clear(); }

  int diversity_mode = 0;               ///< 4 bits
  std::vector<Modulation> modulations;  ///< in the order of the descriptor
};

/// A DVB-C2 signal (EN 300 468, 6.4).
class SIVANE_API DescriptorC2DeliverySystem final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorC2DeliverySystem)

  int plp_id = 0;                               ///< 8 bits
  int data_slice_id = 0;                        ///< 8 bits
  unsigned int C2_System_tuning_frequency = 0;  ///< 32 bits, Hz
  int C2_System_tuning_frequency_type = 0;      ///< 2 bits
  int active_OFDM_symbol_duration = 0;          ///< 3 bits
  int guard_interval = 0;                       ///< 3 bits
};

/// A DVB-S2X signal, or a DVB-S2 one in full (EN 300 468, 6.4).
class SIVANE_API DescriptorS2XSatelliteDeliverySystem final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorS2XSatelliteDeliverySystem)
  void _reset() override { private_data_byte.clear(); }
  /// The roll-off factor of a `roll_off` of 3 bits; 0 where it is reserved.
  static double get_roll_off(int code);

  int receiver_profiles = 0;                  ///< 5 bits, one a profile
  int S2X_mode = 0;                           ///< 2 bits
  bool scrambling_sequence_selector = false;  ///< 1 bit; whether an index is given
  int TS_GS_S2X_mode = 0;                     ///< 2 bits
  int scrambling_sequence_index = 0;          ///< 18 bits
  double frequency = 0;                       ///< GHz, 8 BCD digits
  double orbital_position = 0;                ///< degrees, 4 BCD digits
  int west_east_flag = 0;                     ///< 1 bit, 1 is east
  int polarization = 0;                       ///< 2 bits
  bool multiple_input_stream_flag = false;    ///< 1 bit; whether an input stream identifier is given
  int roll_off = 0;                           ///< 3 bits
  double symbol_rate = 0;                     ///< Msymbol/s, 7 BCD digits
  int input_stream_identifier = 0;            ///< 8 bits
  int timeslice_number = 0;                   ///< 8 bits, with `S2X_mode` 2
  /// The rest, uninterpreted; with `S2X_mode` 3 the other bonded channels.
  std::vector<unsigned char> private_data_byte;
};

/// T2-MI in a stream (EN 300 468, 6.4).
class SIVANE_API DescriptorT2MI final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorT2MI)
  void _reset() override { reserved.clear(); }

  int t2mi_stream_id = 0;                   ///< 3 bits
  int num_t2mi_streams_minus_one = 0;       ///< 3 bits
  bool pcr_iscr_common_clock_flag = false;  ///< 1 bit
  std::vector<unsigned char> reserved;      ///< the rest
};

/// How a DVB-H stream is sliced and protected (EN 301 192, 9.5).
class SIVANE_API DescriptorTimeSliceFecIdentifier final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorTimeSliceFecIdentifier)
  void _reset() override { id_selector_byte.clear(); }

  bool time_slicing = false;                    ///< 1 bit
  int mpe_fec = 0;                              ///< 2 bits
  int frame_size = 0;                           ///< 3 bits
  int max_burst_duration = 0;                   ///< 8 bits
  int max_average_rate = 0;                     ///< 4 bits
  int time_slice_fec_id = 0;                    ///< 4 bits
  std::vector<unsigned char> id_selector_byte;  ///< the rest
};

/// How often ECMs come (EN 301 192, 9.7).
class SIVANE_API DescriptorECMRepetitionRate final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorECMRepetitionRate)
  void _reset() override { private_data_byte.clear(); }

  int CA_system_ID = 0;                          ///< 16 bits
  int ECM_repetition_rate = 0;                   ///< 16 bits, milliseconds
  std::vector<unsigned char> private_data_byte;  ///< the rest
};

}  // namespace sivane
