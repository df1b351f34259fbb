// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/about_stream.h>

#include <algorithm>

namespace sivane::catalogue {

namespace {

bool precedes(ChannelNumber const& left, ChannelNumber const& right) { return left.service < right.service; }

/// Those for all receivers first.
void append(std::vector<ChannelNumber> const& of_a_network, std::vector<ChannelNumber>& numbers) {
  auto const is_for_all = [](ChannelNumber const& number) { return !number.is_hd_simulcast; };
  auto const begin = numbers.insert(numbers.end(), of_a_network.begin(), of_a_network.end());
  std::stable_partition(begin, numbers.end(), is_for_all);
}

/// Of each service the first.
void keep_first(std::vector<ChannelNumber>& numbers) {
  std::stable_sort(numbers.begin(), numbers.end(), precedes);
  auto const is_of_same = [](ChannelNumber const& left, ChannelNumber const& right) {
    return left.service == right.service;
  };
  numbers.erase(std::unique(numbers.begin(), numbers.end(), is_of_same), numbers.end());
  numbers.shrink_to_fit();
}

}  // namespace

AboutStream::AboutStream(StreamKey const& stream, Networks const& networks) : stream_(stream) {
  auto const telling = networks.telling_of(stream);
  for (bool const is_actual : {true, false}) {
    for (auto const& [key, entry] : telling) {
      Network const* const network = networks.networks().find(key);
      if (network == nullptr || network->is_actual != is_actual) continue;
      append(entry->channel_numbers, channel_numbers_);
      if (default_authority_.empty()) default_authority_ = entry->default_authority;
      if (default_authority_.empty()) default_authority_ = network->default_authority;
    }
  }
  keep_first(channel_numbers_);
}

std::optional<ChannelNumber> AboutStream::channel_number(int service) const {
  auto const found =
      std::lower_bound(channel_numbers_.begin(), channel_numbers_.end(), ChannelNumber{service}, precedes);
  if (found == channel_numbers_.end() || found->service != service) return std::nullopt;
  return *found;
}

}  // namespace sivane::catalogue
