// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What the classes that are built on demand cost: nothing where nobody asks for them.
#include <sivane/descriptors/extended/extended.h>

#include <string_view>

#include "compare.h"
#include "descriptor_loops.h"

namespace {

using namespace sivane::testing;  // how bytes are written
using sivane::bench::parse_loops;

/// Of today's streams, services and events; or the same bytes under tags that no class has.
std::vector<Bytes> loops(bool have_classes) {
  auto const make = [have_classes](int tag, Bytes const& body) {
    return make_descriptor(have_classes ? tag : tag | 0xC0, body);
  };
  return {
      make(0x7A, hex("80C2")) + make(0x7F, hex("0687667261")),
      make(0x7C, hex("58BF03")) + make(0x38, hex("6260000001 90ABCDEF0123 47 3F")),
      make(0x7F, hex("0401123403940001 02D34440 00")),
      make(0x73, characters("example.org")) + make(0x7E, hex("FA")),
      make(0x76, hex("04 05 2F31323334")),
      make_descriptor(0x5F, hex("00000028")) + make(0x83, hex("0001FC01 0002FC02")),
  };
}

void build(std::vector<sivane::DescriptorSet> const& owners) {
  using sivane::extended::build;
  for (sivane::DescriptorSet const& owner : owners) {
    for (auto const* filed : {&owner.get_general_descriptors(), &owner.get_user_private_descriptors()}) {
      for (sivane::DescriptorGeneral const& bytes : *filed) benchmark::DoNotOptimize(build(bytes));
    }
  }
}

template <class Work>
void repeat(Work work) {
  constexpr int rounds = 2000;
  for (int i = 0; i < rounds; ++i) work();
}

void file_as_bytes(benchmark::State& state) {
  std::vector<Bytes> const known = loops(true), unknown = loops(false);
  std::vector<sivane::DescriptorSet> owners;
  sivane::bench::compare(
      state, 0, "the time of as many bytes under tags that no class has",
      [&] { repeat([&] { parse_loops(known, owners); }); },
      [&] { repeat([&] { parse_loops(unknown, owners); }); });
}

void build_on_demand(benchmark::State& state) {
  std::vector<Bytes> const known = loops(true);
  std::vector<sivane::DescriptorSet> owners, filed;
  parse_loops(known, filed);
  sivane::bench::compare(
      state, 0, "the time of filing them", [&] { repeat([&] { build(filed); }); },
      [&] { repeat([&] { parse_loops(known, owners); }); });
}

}  // namespace

BENCHMARK(file_as_bytes)->Name("today's descriptors, filed")->Apply(sivane::bench::timed_by_hand);
BENCHMARK(build_on_demand)->Name("today's descriptors, built on demand")->Apply(sivane::bench::timed_by_hand);
