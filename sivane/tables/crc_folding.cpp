// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A block of 16 bytes is a polynomial of 128 terms, its first bit the highest. Only the remainder of the
// whole counts, so that what stands in front of a block may be folded onto it: each half of the front,
// multiplied by the remainder of the power of x that lies between the two, is added to the block.
#include <sivane/tables/crc.h>
#include <sivane/tables/crc_polynomial.h>

#include <cstddef>

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>

/// Of a function that the processor may lack the instructions for; nothing is compiled for them elsewhere.
#define SIVANE_FOLDING __attribute__((target("pclmul,sse4.1")))

namespace sivane::crc {

namespace {

constexpr std::ptrdiff_t block_size = 16;
constexpr int block_bits = 128;

SIVANE_FOLDING __m128i pair(std::uint64_t high, std::uint64_t low) {
  return _mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low));
}

/// The block at `data`, its first byte the highest.
SIVANE_FOLDING __m128i load(unsigned char const* data) {
  __m128i const as_stored = _mm_loadu_si128(reinterpret_cast<__m128i const*>(data));
  return _mm_shuffle_epi8(as_stored, _mm_set_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
}

/// Takes `front` over `bits` to what stands there.
template <int bits>
SIVANE_FOLDING __m128i fold(__m128i front, __m128i block) {
  constexpr std::uint32_t for_high = power_of_x(bits + 64);
  constexpr std::uint32_t for_low = power_of_x(bits);
  __m128i const factors = pair(for_high, for_low);
  __m128i const high = _mm_clmulepi64_si128(front, factors, 0x11);
  __m128i const low = _mm_clmulepi64_si128(front, factors, 0x00);
  return _mm_xor_si128(_mm_xor_si128(high, low), block);
}

/// Folds `block` onto the `size` bytes behind it, 1 to 15: the 16 bytes that end with them are one block, and
/// of `block` in front of that there are `size` bytes left.
SIVANE_FOLDING __m128i fold_tail(__m128i block, unsigned char const* tail, std::ptrdiff_t size) {
  constexpr char none = -128;
  alignas(16) static constexpr char moves[] = {
      none, none, none, none, none, none, none, none, none, none, none, none, none, none, none, none,
      0,    1,    2,    3,    4,    5,    6,    7,    8,    9,    10,   11,   12,   13,   14,   15,
      none, none, none, none, none, none, none, none, none, none, none, none, none, none, none, none};
  char const* const middle = moves + block_size;
  __m128i const up = _mm_loadu_si128(reinterpret_cast<__m128i const*>(middle - size));
  __m128i const down = _mm_loadu_si128(reinterpret_cast<__m128i const*>(middle + block_size - size));
  __m128i const last = _mm_blendv_epi8(_mm_shuffle_epi8(block, up), load(tail + size - block_size), up);
  return fold<block_bits>(_mm_shuffle_epi8(block, down), last);
}

/// Four at a time, since a product is waited for longer than the next one takes to start.
SIVANE_FOLDING __m128i fold_four_at_a_time(__m128i first, unsigned char const*& data,
                                           unsigned char const* end) {
  constexpr int distance = 4 * block_bits;
  __m128i second = load(data);
  __m128i third = load(data + block_size);
  __m128i fourth = load(data + 2 * block_size);
  for (data += 3 * block_size; end - data >= 4 * block_size; data += 4 * block_size) {
    first = fold<distance>(first, load(data));
    second = fold<distance>(second, load(data + block_size));
    third = fold<distance>(third, load(data + 2 * block_size));
    fourth = fold<distance>(fourth, load(data + 3 * block_size));
  }
  return fold<block_bits>(fold<block_bits>(fold<block_bits>(first, second), third), fourth);
}

/// The remainder of `block` times x^32. Products with powers of x shorten it to 96 and to 64 bits; the
/// multiple of the polynomial that is left in those is what the quotient of their upper half says (Barrett).
SIVANE_FOLDING std::uint32_t remainder(__m128i block) {
  constexpr std::uint64_t whole_polynomial = 1ull << 32 | polynomial;
  __m128i const powers = pair(power_of_x(96), power_of_x(32));
  __m128i const division = pair(quotient_of_x64(), whole_polynomial);
  __m128i const bits_96 = _mm_xor_si128(_mm_clmulepi64_si128(block, powers, 0x11),  //
                                        _mm_clmulepi64_si128(block, powers, 0x00));
  __m128i const power_64 = pair(0, power_of_x(64));
  __m128i const bits_64 = _mm_xor_si128(_mm_clmulepi64_si128(bits_96, power_64, 0x01), bits_96);
  __m128i const upper = _mm_srli_epi64(bits_64, 32);
  __m128i const quotient = _mm_srli_epi64(_mm_clmulepi64_si128(upper, division, 0x10), 32);
  __m128i const multiple = _mm_clmulepi64_si128(quotient, division, 0x00);
  return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_xor_si128(multiple, bits_64)));
}

}  // namespace

bool folding_works() { return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1"); }

SIVANE_FOLDING std::uint32_t by_folding(std::uint32_t start, unsigned char const* data, std::size_t size) {
  unsigned char const* const end = data + size;
  __m128i block = _mm_xor_si128(load(data), pair(static_cast<std::uint64_t>(start) << 32, 0));
  data += block_size;
  if (end - data >= 3 * block_size) block = fold_four_at_a_time(block, data, end);
  for (; end - data >= block_size; data += block_size) block = fold<block_bits>(block, load(data));
  if (data != end) block = fold_tail(block, data, end - data);
  return remainder(block);
}

}  // namespace sivane::crc

#else

namespace sivane::crc {

bool folding_works() { return false; }

std::uint32_t by_folding(std::uint32_t start, unsigned char const* data, std::size_t size) {
  return by_slicing(start, data, size);
}

}  // namespace sivane::crc

#endif
