// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Any sections in a catalogue with little memory. The first byte is its memory in units of 64 bytes; a
// section is a byte that chooses a PID and whether its CRC is put right, a byte of length, and as many bytes.
#include <sivane/catalogue/catalogue.h>
#include <sivane/foundation/error.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "input.h"
#include "section_builder.h"

namespace {

using sivane::catalogue::Catalogue;
using sivane::testing::Bytes;

void fit(Bytes& section) {
  std::size_t const length = section.size() - 3;
  section[1] = static_cast<unsigned char>((section[1] & 0xF0) | length >> 8);
  section[2] = static_cast<unsigned char>(length & 0xFF);
  if (section.size() >= 4) sivane::testing::repair_crc(section);
}

/// In a block of its own size, so that the address sanitizer sees the first byte that is read behind it.
void add(Catalogue& catalogue, int pid, Bytes const& section) {
  auto const block = std::make_unique<unsigned char[]>(section.size());
  std::copy(section.begin(), section.end(), block.get());
  try {
    catalogue.add(pid, block.get(), section.size());
  } catch (sivane::error const&) {
    // What is refused changes nothing.
  }
}

/// Asks everything; what it tells of itself must fit together.
void ask(Catalogue const& catalogue, std::size_t limit) {
  constexpr std::size_t names_of_a_section = 4096;  // come on top of what was left out
  if (catalogue.memory() > limit + names_of_a_section) std::abort();
  for (auto const& [key, event] : catalogue.events()) {
    if (catalogue.find(key) != &event || catalogue.events_of(key.service).empty()) std::abort();
    for (auto const& id : event.content_ids)
      static_cast<void>(id.uri(catalogue.default_authority(key.service)));
    catalogue.present_event(key.service);
  }
  for (auto const& [key, service] : catalogue.services()) {
    catalogue.channel_number(key);
    catalogue.ca_systems(key);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  sivane::fuzzing::Input input(data, size);
  constexpr std::size_t unit = 64;
  sivane::catalogue::Options options;
  options.memory = static_cast<std::size_t>(input.byte()) * unit;
  Catalogue catalogue(options);
  while (!input.empty()) {
    unsigned int const choice = input.byte();
    Bytes section = input.bytes(input.byte());
    if (section.size() >= 3 && (choice & 1) != 0) fit(section);
    add(catalogue, static_cast<int>(choice >> 1) - 1, section);
    ask(catalogue, options.memory);
  }
  catalogue.forget_events_before(catalogue.time().value_or(sivane::catalogue::Time()));
  catalogue.clear();
  if (catalogue.memory() != 0) std::abort();
  return 0;
}
