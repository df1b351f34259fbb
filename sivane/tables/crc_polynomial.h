// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: arithmetic modulo the polynomial of CRC_32 (ISO/IEC 13818-1, Annex A). Bits of a number are the
// coefficients of a polynomial, the highest first, and adding is exclusive or.
#pragma once

#include <cstdint>

namespace sivane::crc {

inline constexpr std::uint32_t polynomial = 0x04C11DB7;  // without its highest term, x^32

constexpr std::uint32_t times_x(std::uint32_t remainder) {
  return remainder << 1 ^ (remainder >> 31 != 0 ? polynomial : 0);
}

constexpr std::uint32_t power_of_x(int exponent) {
  std::uint32_t remainder = 1;
  for (int i = 0; i < exponent; ++i) remainder = times_x(remainder);
  return remainder;
}

/// x^64 divided by the polynomial, without the remainder: 33 bits.
constexpr std::uint64_t quotient_of_x64() {
  std::uint64_t quotient = 1;
  std::uint32_t remainder = polynomial;  // of x^32
  for (int i = 0; i < 32; ++i) {
    quotient = quotient << 1 | remainder >> 31;
    remainder = times_x(remainder);
  }
  return quotient;
}

}  // namespace sivane::crc
