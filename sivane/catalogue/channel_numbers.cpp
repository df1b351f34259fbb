// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Logical channel numbers are private descriptors: whose they are says the private data specifier of their
// loop.
#include <sivane/catalogue/network_reading.h>
#include <sivane/foundation/reader.h>

#include <algorithm>

namespace sivane::catalogue {

namespace {

constexpr unsigned int none = 0, eacem = 0x28, nordig = 0x29;
constexpr int logical_channel_tag = 0x83;

/// The one that is in force in the loop; none where there are several, since the order of a loop is not kept.
unsigned int specifier_of(DescriptorSet const& entry) {
  auto const& descriptors = entry.get_private_data_specifier_descriptors();
  if (descriptors.empty()) return none;
  unsigned int const first = descriptors.front().private_data_specifier;
  bool const is_one = std::all_of(descriptors.begin(), descriptors.end(), [first](auto const& other) {
    return other.private_data_specifier == first;
  });
  return is_one ? first : none;
}

/// Entries of service_id, visible_service_flag and a number, which has 10 bits with EACEM and 14 with NorDig.
void read_numbers(DescriptorGeneral const& descriptor, int number_bits, std::vector<ChannelNumber>& numbers) {
  constexpr int entry_size = 4;
  Reader reader = Reader::within(descriptor.data.data(), static_cast<int>(descriptor.data.size()));
  while (reader.left() >= entry_size) {
    ChannelNumber number;
    number.service = reader.u16();
    number.is_visible = reader.flag();
    reader.skip_bits(15 - number_bits);
    number.number = reader.bits(number_bits);
    numbers.push_back(number);
  }
}

}  // namespace

std::vector<ChannelNumber> channel_numbers_of(DescriptorSet const& entry) {
  std::vector<ChannelNumber> numbers;
  unsigned int const specifier = specifier_of(entry);
  if (specifier != eacem && specifier != nordig) return numbers;
  for (DescriptorGeneral const& descriptor : entry.get_user_private_descriptors()) {
    if (descriptor.tag == logical_channel_tag)
      read_numbers(descriptor, specifier == eacem ? 10 : 14, numbers);
  }
  return numbers;
}

}  // namespace sivane::catalogue
