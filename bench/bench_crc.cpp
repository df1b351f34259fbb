// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The checksum against the loop that takes one byte at a time.
#include <sivane/tables/crc.h>

#include <array>

#include "compare.h"
#include "plain_bytes.h"

namespace {

constexpr std::array<std::uint32_t, 256> make_table() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte << 24;
    for (int bit = 0; bit < 8; ++bit) crc = crc << 1 ^ (crc >> 31 != 0 ? 0x04C11DB7 : 0);
    table[byte] = crc;
  }
  return table;
}

constexpr std::array table = make_table();

std::uint32_t byte_at_a_time(unsigned char const* data, std::size_t size) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (std::size_t i = 0; i < size; ++i) crc = table[crc >> 24 ^ data[i]] ^ crc << 8;
  return crc;
}

/// Goes over the sections that lie one behind the other in `bytes`.
template <class Checksum>
std::uint32_t sum_of_all(std::vector<unsigned char> const& bytes, std::size_t size, Checksum checksum) {
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at + size <= bytes.size(); at += size) sum += checksum(bytes.data() + at, size);
  return sum;
}

void byte_loop_against_crc(benchmark::State& state) {
  constexpr std::size_t amount = 200000;
  auto const size = static_cast<std::size_t>(state.range(0));
  auto const bytes = sivane::testing::noise(amount / size * size);
  std::uint32_t theirs = 0;
  std::uint32_t ours = 0;
  sivane::bench::compare(
      state, bytes.size(), "the time of the library's CRC",
      [&] { theirs = sum_of_all(bytes, size, byte_at_a_time); },
      [&] { ours = sum_of_all(bytes, size, sivane::crc_register); });
  if (ours != theirs) state.SkipWithError("the two sums differ");
}

}  // namespace

BENCHMARK(byte_loop_against_crc)
    ->Name("CRC a byte at a time, sections of # bytes")
    ->Arg(20)
    ->Arg(64)
    ->Arg(192)
    ->Arg(1024)
    ->Arg(4096)
    ->Apply(sivane::bench::timed_by_hand);
