// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/delivery.h>
#include <sivane/descriptors/extended/exact_body.h>
#include <sivane/descriptors/value_text.h>

#include <iterator>

namespace sivane {

namespace {

int read_scrambling_sequence_index(Reader& r) {
  r.skip_bits(6);
  return r.bits(18);
}

}  // namespace

// S2_satellite_delivery_system_descriptor

DescriptorS2SatelliteDeliverySystem::DescriptorS2SatelliteDeliverySystem(DescriptorBytes d)
    : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  scrambling_sequence_selector = r.flag();
  multiple_input_stream_flag = r.flag();
  r.skip_bits(1);
  not_timeslice_flag = r.flag();
  r.skip_bits(2);
  TS_GS_mode = r.bits(2);
  if (scrambling_sequence_selector) scrambling_sequence_index = read_scrambling_sequence_index(r);
  if (multiple_input_stream_flag) input_stream_identifier = r.u8();
  if (!not_timeslice_flag && r.more()) timeslice_number = r.u8();
}

// T2_delivery_system_descriptor

DescriptorT2DeliverySystem::DescriptorT2DeliverySystem(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  plp_id = r.u8();
  T2_system_id = r.u16();
  has_parameters = r.more();
  if (!has_parameters) return;
  SISO_MISO = r.bits(2);
  bandwidth = r.bits(4);
  r.skip_bits(2);
  guard_interval = r.bits(3);
  transmission_mode = r.bits(3);
  other_frequency_flag = r.flag();
  tfs_flag = r.flag();
  r.walk(cells, too_little_data, tfs_flag);
}

DescriptorT2DeliverySystem::Cell::Cell(Reader& r) : Cell(r, false) {}

DescriptorT2DeliverySystem::Cell::Cell(Reader& r, bool tfs) {
  cell_id = r.u16();
  Reader frequencies = exact_loop(r, tfs ? r.u8() : 4);
  centre_frequency = frequencies.numbers<unsigned long>(32, too_little_data);
  subcells = exact_loop(r, r.u8()).walk<Subcell>();
}

DescriptorT2DeliverySystem::Subcell::Subcell(Reader& r) {
  cell_id_extension = r.u8();
  transposer_frequency = r.u32();
}

double DescriptorT2DeliverySystem::get_bandwidth(int code) {
  constexpr double megahertz[] = {8, 7, 6, 5, 10, 1.712};
  return code >= 0 && code < static_cast<int>(std::size(megahertz)) ? megahertz[code] : 0;
}

char const* DescriptorT2DeliverySystem::get_transmission_mode_text(int mode) {
  static constexpr char const* texts[] = {"2k", "8k", "4k", "1k", "16k", "32k"};
  return value_text(texts, mode, "reserved");
}

char const* DescriptorT2DeliverySystem::get_guard_interval_text(int interval) {
  static constexpr char const* texts[] = {"1/32", "1/16", "1/8", "1/4", "1/128", "19/128", "19/256"};
  return value_text(texts, interval, "reserved");
}

// SH_delivery_system_descriptor

DescriptorSHDeliverySystem::DescriptorSHDeliverySystem(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  diversity_mode = r.bits(4);
  r.skip_bits(4);
  modulations = r.walk<Modulation>();
}

DescriptorSHDeliverySystem::Modulation::Modulation(Reader& r) {
  modulation_type = r.flag();
  interleaver_presence = r.flag();
  interleaver_type = r.flag();
  r.skip_bits(5);
  modulation_type ? read_ofdm(r) : read_tdm(r);
  if (interleaver_presence) read_interleaver(r);
}

void DescriptorSHDeliverySystem::Modulation::read_tdm(Reader& r) {
  polarization = r.bits(2);
  roll_off = r.bits(2);
  modulation_mode = r.bits(2);
  code_rate = r.bits(4);
  symbol_rate = r.bits(5);
  r.skip_bits(1);
}

void DescriptorSHDeliverySystem::Modulation::read_ofdm(Reader& r) {
  bandwidth = r.bits(3);
  priority = r.bits(1);
  constellation_and_hierarchy = r.bits(3);
  code_rate = r.bits(4);
  guard_interval = r.bits(2);
  transmission_mode = r.bits(2);
  common_frequency = r.flag();
}

void DescriptorSHDeliverySystem::Modulation::read_interleaver(Reader& r) {
  common_multiplier = r.bits(6);
  if (interleaver_type) return r.skip_bits(2);
  nof_late_taps = r.bits(6);
  nof_slices = r.bits(6);
  slice_distance = r.u8();
  non_late_increments = r.bits(6);
}

// C2_delivery_system_descriptor

DescriptorC2DeliverySystem::DescriptorC2DeliverySystem(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  plp_id = r.u8();
  data_slice_id = r.u8();
  C2_System_tuning_frequency = r.u32();
  C2_System_tuning_frequency_type = r.bits(2);
  active_OFDM_symbol_duration = r.bits(3);
  guard_interval = r.bits(3);
}

// S2X_satellite_delivery_system_descriptor

DescriptorS2XSatelliteDeliverySystem::DescriptorS2XSatelliteDeliverySystem(DescriptorBytes d)
    : ExtendedDescriptor(d) {
  constexpr int time_sliced = 2;
  Reader r = extension_body(d);
  receiver_profiles = r.bits(5);
  r.skip_bits(3);
  S2X_mode = r.bits(2);
  scrambling_sequence_selector = r.flag();
  r.skip_bits(3);
  TS_GS_S2X_mode = r.bits(2);
  if (scrambling_sequence_selector) scrambling_sequence_index = read_scrambling_sequence_index(r);
  frequency = r.bcd({100, 10, 1, 0.1, 0.01, 0.001, 0.0001, 0.00001});
  orbital_position = r.bcd({100, 10, 1, 0.1});
  west_east_flag = r.bits(1);
  polarization = r.bits(2);
  multiple_input_stream_flag = r.flag();
  r.skip_bits(1);
  roll_off = r.bits(3);
  r.skip_bits(4);
  symbol_rate = r.bcd({100, 10, 1, 0.1, 0.01, 0.001, 0.0001});
  if (multiple_input_stream_flag) input_stream_identifier = r.u8();
  if (S2X_mode == time_sliced) timeslice_number = r.u8();
  private_data_byte = r.rest();
}

double DescriptorS2XSatelliteDeliverySystem::get_roll_off(int code) {
  constexpr double factors[] = {0.35, 0.25, 0.20, 0, 0.15, 0.10, 0.05, 0};
  return code >= 0 && code < static_cast<int>(std::size(factors)) ? factors[code] : 0;
}

// T2MI_descriptor

DescriptorT2MI::DescriptorT2MI(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  r.skip_bits(5);
  t2mi_stream_id = r.bits(3);
  r.skip_bits(5);
  num_t2mi_streams_minus_one = r.bits(3);
  r.skip_bits(7);
  pcr_iscr_common_clock_flag = r.flag();
  reserved = r.rest();
}

// time_slice_fec_identifier_descriptor

DescriptorTimeSliceFecIdentifier::DescriptorTimeSliceFecIdentifier(DescriptorBytes d)
    : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  time_slicing = r.flag();
  mpe_fec = r.bits(2);
  r.skip_bits(2);
  frame_size = r.bits(3);
  max_burst_duration = r.u8();
  max_average_rate = r.bits(4);
  time_slice_fec_id = r.bits(4);
  id_selector_byte = r.rest();
}

// ECM_repetition_rate_descriptor

DescriptorECMRepetitionRate::DescriptorECMRepetitionRate(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = exact_body(d);
  CA_system_ID = r.u16();
  ECM_repetition_rate = r.u16();
  private_data_byte = r.rest();
}

}  // namespace sivane
