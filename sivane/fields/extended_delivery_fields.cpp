// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/delivery.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorS2SatelliteDeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(scrambling_sequence_selector));
  f.add(FIELD(multiple_input_stream_flag));
  f.add(FIELD(not_timeslice_flag));
  f.add(FIELD(TS_GS_mode), 2);
  f.add(FIELD(scrambling_sequence_index), 18);
  f.add(FIELD(input_stream_identifier), 8);
  f.add(FIELD(timeslice_number), 8);
}

RECORD_FIELDS(DescriptorT2DeliverySystem::Subcell) {
  f.add(FIELD(cell_id_extension), 8);
  f.add(FIELD(transposer_frequency), 32);
}

RECORD_FIELDS(DescriptorT2DeliverySystem::Cell) {
  f.add(FIELD(cell_id), 16);
  f.add(FIELD(centre_frequency), 32);
  f.list(FIELD(subcells), u"subcell");
}

void DescriptorT2DeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(plp_id), 8);
  f.add(FIELD(T2_system_id), 16);
  f.add(FIELD(has_parameters));
  f.add(FIELD(SISO_MISO), 2);
  f.add(FIELD(bandwidth), 4);
  f.add(FIELD(guard_interval), 3);
  f.add(FIELD(transmission_mode), 3);
  f.add(FIELD(other_frequency_flag));
  f.add(FIELD(tfs_flag));
  f.list(FIELD(cells), u"cell");
}

RECORD_FIELDS(DescriptorSHDeliverySystem::Modulation) {
  f.add(FIELD(modulation_type));
  f.add(FIELD(interleaver_presence));
  f.add(FIELD(interleaver_type));
  f.add(FIELD(polarization), 2);
  f.add(FIELD(roll_off), 2);
  f.add(FIELD(modulation_mode), 2);
  f.add(FIELD(code_rate), 4);
  f.add(FIELD(symbol_rate), 5);
  f.add(FIELD(bandwidth), 3);
  f.add(FIELD(priority), 1);
  f.add(FIELD(constellation_and_hierarchy), 3);
  f.add(FIELD(guard_interval), 2);
  f.add(FIELD(transmission_mode), 2);
  f.add(FIELD(common_frequency));
  f.add(FIELD(common_multiplier), 6);
  f.add(FIELD(nof_late_taps), 6);
  f.add(FIELD(nof_slices), 6);
  f.add(FIELD(slice_distance), 8);
  f.add(FIELD(non_late_increments), 6);
}

void DescriptorSHDeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(diversity_mode), 4);
  f.list(FIELD(modulations), u"modulation");
}

void DescriptorC2DeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(plp_id), 8);
  f.add(FIELD(data_slice_id), 8);
  f.add(FIELD(C2_System_tuning_frequency), 32);
  f.add(FIELD(C2_System_tuning_frequency_type), 2);
  f.add(FIELD(active_OFDM_symbol_duration), 3);
  f.add(FIELD(guard_interval), 3);
}

void DescriptorS2XSatelliteDeliverySystem::_fields(FieldList& f) {
  f.add(FIELD(receiver_profiles), 5);
  f.add(FIELD(S2X_mode), 2);
  f.add(FIELD(scrambling_sequence_selector));
  f.add(FIELD(TS_GS_S2X_mode), 2);
  f.add(FIELD(scrambling_sequence_index), 18);
  f.add(FIELD(frequency));
  f.add(FIELD(orbital_position));
  f.add(FIELD(west_east_flag), 1);
  f.add(FIELD(polarization), 2);
  f.add(FIELD(multiple_input_stream_flag));
  f.add(FIELD(roll_off), 3);
  f.add(FIELD(symbol_rate));
  f.add(FIELD(input_stream_identifier), 8);
  f.add(FIELD(timeslice_number), 8);
  f.add(FIELD(private_data_byte));
}

void DescriptorT2MI::_fields(FieldList& f) {
  f.add(FIELD(t2mi_stream_id), 3);
  f.add(FIELD(num_t2mi_streams_minus_one), 3);
  f.add(FIELD(pcr_iscr_common_clock_flag));
  f.add(FIELD(reserved));
}

void DescriptorTimeSliceFecIdentifier::_fields(FieldList& f) {
  f.add(FIELD(time_slicing));
  f.add(FIELD(mpe_fec), 2);
  f.add(FIELD(frame_size), 3);
  f.add(FIELD(max_burst_duration), 8);
  f.add(FIELD(max_average_rate), 4);
  f.add(FIELD(time_slice_fec_id), 4);
  f.add(FIELD(id_selector_byte));
}

void DescriptorECMRepetitionRate::_fields(FieldList& f) {
  f.add(FIELD(CA_system_ID), 16);
  f.add(FIELD(ECM_repetition_rate), 16);
  f.add(FIELD(private_data_byte));
}

}  // namespace sivane
