// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptor loops as they stand in the tables of a broadcast, parsed into the sets of their owners.
#include <string_view>

#include "compare.h"
#include "count.h"
#include "descriptor_loops.h"

namespace {

using namespace sivane::testing;  // how bytes are written
using sivane::bench::parse_loops;

Bytes prefixed(std::string_view text) {
  return Bytes{static_cast<unsigned char>(text.size())} + characters(text);
}

/// One loop an owner: streams of a program map, services, events, transponders.
std::vector<Bytes> loops() {
  Bytes const subtitles = make_descriptor(0x59, hex("646575 10 0001 0001 656E67 10 0002 0002"));
  Bytes const teletext = make_descriptor(0x56, hex("646575 09 00 646575 11 50"));
  Bytes const service =
      make_descriptor(0x48, Bytes{0x01} + prefixed("Harbour Media") + prefixed("Harbour One"));
  Bytes const event = make_descriptor(0x4D, characters("eng") + prefixed("The lighthouse keeper") +
                                                prefixed("A documentary in three parts about the coast"));
  Bytes const long_event = make_descriptor(
      0x4E,
      Bytes{0x00} + characters("eng") + Bytes{0} +
          prefixed("Sixty years of storms, ships and letters home, told by those who kept the light burning, "
                   "and by the gulls. With pictures from the archive of the harbour office."));
  Bytes const satellite = make_descriptor(0x43, hex("01175850 0192 C9 02750003"));
  return {
      make_descriptor(0x52, {0x01}) + make_descriptor(0x09, hex("0500 E1F5")),
      make_descriptor(0x52, {0x02}) + make_descriptor(0x0A, hex("656E67 00")),
      make_descriptor(0x52, {0x03}) + teletext,
      make_descriptor(0x52, {0x04}) + subtitles,
      make_descriptor(0x52, {0x05}) + make_descriptor(0x6A, hex("40 08")) +
          make_descriptor(0x0A, hex("656E67 00")),
      service + make_descriptor(0x53, hex("0500 0600")),
      service + make_descriptor(0x4A, hex("0001 0002 0003 01")),
      event + make_descriptor(0x50, hex("F1 03 01 656E67")) + make_descriptor(0x54, hex("2300")),
      event + long_event + make_descriptor(0x50, hex("F2 03 02 656E67")) +
          make_descriptor(0x54, hex("1000 2000")) + make_descriptor(0x55, hex("444555 09")),
      event + make_descriptor(0x4F, hex("0102 0304")),
      make_descriptor(0x41, hex("0001 01 0002 01 0003 02 0004 19 0005 0C")) + satellite +
          make_descriptor(0x5F, hex("00000028")) + make_descriptor(0x83, hex("0001FC01 0002FC02")),
  };
}

int descriptors_in(std::vector<Bytes> const& all) {
  int count = 0;
  for (Bytes const& loop : all) {
    for (std::size_t at = 0; at < loop.size(); at += loop[at + 1] + 2u) ++count;
  }
  return count;
}

/// The least that keeps descriptors: a block of memory for the bytes of each.
void keep_bytes(std::vector<Bytes> const& all, std::vector<std::vector<Bytes>>& owners) {
  owners.clear();
  for (Bytes const& loop : all) {
    std::vector<Bytes>& owner = owners.emplace_back();
    for (auto at = loop.begin(); at != loop.end(); at += at[1] + 2) owner.emplace_back(at, at + at[1] + 2);
  }
}

void parse_descriptors(benchmark::State& state) {
  constexpr int rounds = 1000;
  std::vector<Bytes> const all = loops();
  std::size_t bytes = 0;
  for (Bytes const& loop : all) bytes += loop.size() * rounds;
  std::vector<sivane::DescriptorSet> owners;
  std::vector<std::vector<Bytes>> copies;
  auto const repeat = [](auto once) {
    for (int i = 0; i < rounds; ++i) once();
  };
  parse_loops(all, owners);  // the vector of owners has its memory from here on
  std::size_t const taken = allocations_of([&] { parse_loops(all, owners); });
  sivane::bench::compare(
      state, bytes, "the time of keeping the bytes of each in a block of memory",
      [&] { repeat([&] { parse_loops(all, owners); }); }, [&] { repeat([&] { keep_bytes(all, copies); }); });
  state.counters["allocations"] = static_cast<double>(taken) / descriptors_in(all);
}

}  // namespace

BENCHMARK(parse_descriptors)->Name("descriptors, a realistic mix")->Apply(sivane::bench::timed_by_hand);
