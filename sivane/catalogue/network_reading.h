// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: from descriptors of a NIT or BAT to what is held of them.
#pragma once

#include <sivane/catalogue/network.h>
#include <sivane/descriptors/descriptor_set.h>

#include <vector>

namespace sivane::catalogue {

TransportStream stream_of(DescriptorSet const& entry);
std::vector<Delivery> deliveries_of(DescriptorSet const& entry);
std::vector<ChannelNumber> channel_numbers_of(DescriptorSet const& entry);

}  // namespace sivane::catalogue
