// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/extended_reading.h>
#include <sivane/catalogue/network_reading.h>
#include <sivane/catalogue/values.h>

namespace sivane::catalogue {

namespace {

constexpr double mega = 1e6, giga = 1e9;

/// What the satellite's own descriptor and S2X have in common.
template <class Descriptor>
Delivery from_satellite(Delivery::System system, Descriptor const& descriptor) {
  Delivery delivery;
  delivery.system = system;
  delivery.frequency = descriptor.frequency * giga;
  delivery.symbol_rate = descriptor.symbol_rate * mega;
  delivery.orbital_position = descriptor.orbital_position;
  delivery.is_east = descriptor.west_east_flag != 0;
  delivery.polarization = descriptor.polarization;
  return delivery;
}

/// A centre_frequency in units of 10 Hz; none where a list of frequencies tells (ETSI EN 300 468, 6.2.13.4).
std::optional<double> centre_frequency(unsigned long units) {
  constexpr unsigned long undefined = 0xFFFFFFFF;
  constexpr double unit = 10;
  return units == undefined ? std::nullopt : std::optional<double>(static_cast<double>(units) * unit);
}

Delivery delivery_of(DescriptorSatelliteDeliverySystem const& descriptor) {
  Delivery delivery = from_satellite(Delivery::System::satellite, descriptor);
  delivery.modulation = descriptor.modulation;
  delivery.inner_code = descriptor.FEC_inner;
  return delivery;
}

Delivery delivery_of(DescriptorCableDeliverySystem const& descriptor) {
  Delivery delivery;
  delivery.system = Delivery::System::cable;
  delivery.frequency = descriptor.frequency * mega;
  delivery.symbol_rate = descriptor.symbol_rate * mega;
  delivery.modulation = descriptor.modulation;
  delivery.inner_code = descriptor.FEC_inner;
  return delivery;
}

Delivery delivery_of(DescriptorTerrestrialDeliverySystem const& descriptor) {
  constexpr double widest = 8;
  constexpr int narrowest = 3;
  Delivery delivery;
  delivery.system = Delivery::System::terrestrial;
  delivery.frequency = centre_frequency(descriptor.centre_frequency);
  if (descriptor.bandwidth <= narrowest) delivery.bandwidth = (widest - descriptor.bandwidth) * mega;
  delivery.modulation = descriptor.constellation;
  delivery.inner_code = descriptor.code_rate_HP_stream;
  delivery.guard_interval = descriptor.guard_interval;
  delivery.transmission_mode = descriptor.transmission_mode;
  return delivery;
}

/// What S2 and S2X have in common.
template <class Descriptor>
void read_input(Descriptor const& descriptor, Delivery& delivery) {
  if (descriptor.multiple_input_stream_flag) delivery.input_stream = descriptor.input_stream_identifier;
  if (descriptor.scrambling_sequence_selector) {
    delivery.scrambling_sequence = descriptor.scrambling_sequence_index;
  }
}

Delivery delivery_of(DescriptorS2SatelliteDeliverySystem const& descriptor) {
  Delivery delivery;
  delivery.system = Delivery::System::satellite_s2;
  read_input(descriptor, delivery);
  return delivery;
}

Delivery delivery_of(DescriptorS2XSatelliteDeliverySystem const& descriptor) {
  Delivery delivery = from_satellite(Delivery::System::satellite_s2x, descriptor);
  delivery.roll_off = DescriptorS2XSatelliteDeliverySystem::get_roll_off(descriptor.roll_off);
  read_input(descriptor, delivery);
  return delivery;
}

/// Of several frequencies none is the stream's own.
Delivery delivery_of(DescriptorT2DeliverySystem const& descriptor) {
  Delivery delivery;
  delivery.system = Delivery::System::terrestrial_t2;
  delivery.plp = descriptor.plp_id;
  delivery.t2_system = descriptor.T2_system_id;
  if (descriptor.has_parameters) {
    delivery.bandwidth = DescriptorT2DeliverySystem::get_bandwidth(descriptor.bandwidth) * mega;
    delivery.guard_interval = descriptor.guard_interval;
    delivery.transmission_mode = descriptor.transmission_mode;
  }
  if (descriptor.cells.size() == 1 && descriptor.cells[0].centre_frequency.size() == 1) {
    delivery.frequency = centre_frequency(descriptor.cells[0].centre_frequency[0]);
  }
  return delivery;
}

Delivery delivery_of(DescriptorC2DeliverySystem const& descriptor) {
  Delivery delivery;
  delivery.system = Delivery::System::cable_c2;
  delivery.plp = descriptor.plp_id;
  delivery.data_slice = descriptor.data_slice_id;
  delivery.guard_interval = descriptor.guard_interval;
  delivery.frequency = descriptor.C2_System_tuning_frequency;
  return delivery;
}

template <class Descriptor>
void append_if(DescriptorGeneral const& bytes, std::vector<Delivery>& deliveries) {
  if (auto const descriptor = read_extended<Descriptor>(bytes))
    deliveries.push_back(delivery_of(*descriptor));
}

template <class Descriptors>
void append(Descriptors const& descriptors, std::vector<Delivery>& deliveries) {
  for (auto const& descriptor : descriptors) deliveries.push_back(delivery_of(descriptor));
}

}  // namespace

std::vector<Delivery> deliveries_of(DescriptorSet const& entry) {
  std::vector<Delivery> deliveries;
  append(entry.get_satellite_delivery_system_descriptors(), deliveries);
  append(entry.get_cable_delivery_system_descriptors(), deliveries);
  append(entry.get_terrestrial_delivery_system_descriptors(), deliveries);
  for (DescriptorGeneral const& bytes : entry.get_general_descriptors()) {
    append_if<DescriptorS2SatelliteDeliverySystem>(bytes, deliveries);
    append_if<DescriptorS2XSatelliteDeliverySystem>(bytes, deliveries);
    append_if<DescriptorT2DeliverySystem>(bytes, deliveries);
    append_if<DescriptorC2DeliverySystem>(bytes, deliveries);
  }
  return deliveries;
}

TransportStream stream_of(DescriptorSet const& entry) {
  TransportStream stream;
  stream.deliveries = deliveries_of(entry);
  for (auto const& descriptor : entry.get_service_list_descriptors()) {
    for (auto const& listed : descriptor.servicelist) {
      stream.services.push_back({listed.service_id, listed.service_type});
    }
  }
  stream.channel_numbers = channel_numbers_of(entry);
  stream.default_authority = default_authority_of(entry);
  stream.ca_systems = ca_systems_of(entry);
  return stream;
}

}  // namespace sivane::catalogue
