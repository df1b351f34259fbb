// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/network_reading.h>
#include <sivane/catalogue/values.h>

namespace sivane::catalogue {

namespace {

constexpr double mega = 1e6, giga = 1e9;

Delivery delivery_of(DescriptorSatelliteDeliverySystem const& descriptor) {
  Delivery delivery;
  delivery.system = Delivery::System::satellite;
  delivery.frequency = descriptor.frequency * giga;
  delivery.symbol_rate = descriptor.symbol_rate * mega;
  delivery.orbital_position = descriptor.orbital_position;
  delivery.is_east = descriptor.west_east_flag != 0;
  delivery.polarization = descriptor.polarization;
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
  constexpr unsigned long undefined =
      0xFFFFFFFF;  // where a list of frequencies tells (ETSI EN 300 468, 6.2.13.4)
  constexpr double unit = 10, widest = 8;
  constexpr int narrowest = 3;
  Delivery delivery;
  delivery.system = Delivery::System::terrestrial;
  if (descriptor.centre_frequency != undefined) {
    delivery.frequency = static_cast<double>(descriptor.centre_frequency) * unit;
  }
  if (descriptor.bandwidth <= narrowest) delivery.bandwidth = (widest - descriptor.bandwidth) * mega;
  delivery.modulation = descriptor.constellation;
  delivery.inner_code = descriptor.code_rate_HP_stream;
  return delivery;
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
  stream.ca_systems = ca_systems_of(entry);
  return stream;
}

}  // namespace sivane::catalogue
