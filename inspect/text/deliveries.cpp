// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/deliveries.h"

#include <sivane/sivane.h>

#include <iomanip>
#include <ostream>
#include <sstream>

namespace inspect {

namespace {

using sivane::catalogue::Delivery;

constexpr int digits_of_frequencies = 9;  // as many as a descriptor has
constexpr double mega = 1e6, giga = 1e9;

/// In hertz what is far from any frequency in use, as some broadcasts have it.
std::string megahertz(double hertz) {
  std::ostringstream text;
  text << std::setprecision(digits_of_frequencies) << (hertz < 1000 ? hertz : hertz / mega)
       << (hertz < 1000 ? " Hz" : " MHz");
  return text.str();
}

/// What S2 adds to the satellite's own descriptor.
void write_input(std::ostream& text, Delivery const& delivery) {
  if (delivery.input_stream >= 0) text << ", input stream " << delivery.input_stream;
  if (delivery.scrambling_sequence >= 0) text << ", scrambling sequence " << delivery.scrambling_sequence;
}

void write_place(std::ostream& text, Delivery const& delivery) {
  sivane::DescriptorSatelliteDeliverySystem codes;
  codes.polarization = delivery.polarization;
  text << delivery.orbital_position << (delivery.is_east ? " E, " : " W, ")
       << delivery.frequency.value_or(0) / giga << " GHz " << codes.get_polarization_text() << ", "
       << delivery.symbol_rate / mega << " Msymbol/s";
}

void write_s2x(std::ostream& text, Delivery const& delivery) {
  write_place(text << "DVB-S2X ", delivery);
  if (delivery.roll_off > 0) text << ", roll-off " << delivery.roll_off;
  write_input(text, delivery);
}

/// T2 and C2, whose streams are in pipes.
void write_pipe(std::ostream& text, char const* system, Delivery const& delivery) {
  text << system;
  if (delivery.frequency) text << ' ' << megahertz(*delivery.frequency);
  text << ", PLP " << delivery.plp;
}

void write_t2(std::ostream& text, Delivery const& delivery) {
  using Codes = sivane::DescriptorT2DeliverySystem;
  write_pipe(text, "DVB-T2", delivery);
  text << ", T2 system " << delivery.t2_system;
  if (delivery.bandwidth > 0) text << ", " << delivery.bandwidth / mega << " MHz wide";
  if (delivery.transmission_mode >= 0)
    text << ", mode " << Codes::get_transmission_mode_text(delivery.transmission_mode);
  if (delivery.guard_interval >= 0)
    text << ", guard interval " << Codes::get_guard_interval_text(delivery.guard_interval);
}

void write_c2(std::ostream& text, Delivery const& delivery) {
  write_pipe(text, "DVB-C2", delivery);
  text << ", data slice " << delivery.data_slice;
}

void write_satellite(std::ostream& text, Delivery const& delivery) {
  write_place(text << "satellite ", delivery);
  text << ", FEC " << sivane::DescriptorSatelliteDeliverySystem::get_FEC_inner_text(delivery.inner_code);
}

void write_cable(std::ostream& text, Delivery const& delivery) {
  text << "cable " << delivery.frequency.value_or(0) / mega << " MHz, " << delivery.symbol_rate / mega
       << " Msymbol/s";
  constexpr int last_modulation = 5;
  int const code = delivery.modulation;
  if (code >= 1 && code <= last_modulation) text << ", " << (8 << code) << "-QAM";
}

void write_terrestrial(std::ostream& text, Delivery const& delivery) {
  if (delivery.frequency) {
    text << "terrestrial " << *delivery.frequency / mega << " MHz";
  } else {
    text << "terrestrial, frequency undefined";
  }
  if (delivery.bandwidth > 0) text << ", " << delivery.bandwidth / mega << " MHz wide";
}

}  // namespace

std::string delivery_text(Delivery const& delivery) {
  std::ostringstream text;
  text.exceptions(std::ios::badbit);
  text << std::setprecision(digits_of_frequencies);
  switch (delivery.system) {
    case Delivery::System::satellite:
      write_satellite(text, delivery);
      break;
    case Delivery::System::cable:
      write_cable(text, delivery);
      break;
    case Delivery::System::terrestrial:
      write_terrestrial(text, delivery);
      break;
    case Delivery::System::satellite_s2:
      write_input(text << "DVB-S2", delivery);
      break;
    case Delivery::System::satellite_s2x:
      write_s2x(text, delivery);
      break;
    case Delivery::System::terrestrial_t2:
      write_t2(text, delivery);
      break;
    case Delivery::System::cable_c2:
      write_c2(text, delivery);
      break;
  }
  return text.str();
}

}  // namespace inspect
