// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/network_address.h"

#include <charconv>

#include "input/source.h"

namespace inspect {

namespace {

constexpr std::string_view local_address_key = "localaddr=";

bool is_port(std::string_view text) {
  unsigned int port = 0;
  auto const [end, fault] = std::from_chars(text.data(), text.data() + text.size(), port);
  return fault == std::errc() && end == text.data() + text.size() && port > 0 && port <= 0xFFFF;
}

}  // namespace

NetworkAddress NetworkAddress::from(std::string_view text) {
  auto const wrong = [text](char const* what) { return NoInput(std::string(text) + ": " + what); };
  NetworkAddress address;
  std::string_view place = text;
  if (std::size_t const mark = text.find('?'); mark != std::string_view::npos) {
    std::string_view const option = text.substr(mark + 1);
    if (!option.starts_with(local_address_key)) throw wrong("only ?localaddr=ADDRESS is known");
    address.local_address = option.substr(local_address_key.size());
    place = text.substr(0, mark);
  }
  if (place.starts_with('@')) place.remove_prefix(1);
  if (place.ends_with('/')) place.remove_suffix(1);
  std::size_t const colon = place.rfind(':');
  if (colon == std::string_view::npos) throw wrong("a port is missing, as in 239.1.2.3:5000");
  address.port = place.substr(colon + 1);
  if (!is_port(address.port)) throw wrong("the port is not a number from 1 to 65535");
  std::string_view group = place.substr(0, colon);
  if (group.starts_with('[') && group.ends_with(']')) group = group.substr(1, group.size() - 2);
  address.group = group;
  return address;
}

}  // namespace inspect
