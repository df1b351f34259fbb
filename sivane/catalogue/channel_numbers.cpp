// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Logical channel numbers are private descriptors: whose they are says the private data specifier in force.
#include <sivane/catalogue/extended_reading.h>
#include <sivane/catalogue/network_reading.h>

namespace sivane::catalogue {

namespace {

template <class Services>
void append(Services const& services, std::vector<ChannelNumber>& numbers, bool is_hd_simulcast = false) {
  for (auto const& service : services) {
    numbers.push_back(
        {service.service_id, service.logical_channel_number, service.visible_service_flag, is_hd_simulcast});
  }
}

}  // namespace

std::vector<ChannelNumber> channel_numbers_of(DescriptorSet const& entry) {
  std::vector<ChannelNumber> numbers;
  for (DescriptorGeneral const& descriptor : entry.get_user_private_descriptors()) {
    if (auto const eacem = read_extended<DescriptorLogicalChannel>(descriptor))
      append(eacem->services, numbers);
    if (auto const simulcast = read_extended<DescriptorHDSimulcastLogicalChannel>(descriptor))
      append(simulcast->services, numbers, true);
    if (auto const nordig = read_extended<DescriptorNorDigLogicalChannel>(descriptor))
      append(nordig->services, numbers);
    if (auto const lists = read_extended<DescriptorNorDigChannelLists>(descriptor)) {
      for (auto const& list : lists->channel_lists) append(list.services, numbers);
    }
  }
  return numbers;
}

}  // namespace sivane::catalogue
