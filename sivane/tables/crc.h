// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the checksum of long-form sections.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sivane {

/// The CRC_32 register after `size` bytes (ISO/IEC 13818-1, Annex A): polynomial 0x04C11DB7, most significant
/// bit first, preset to all ones, no final inversion. Over a whole section with its stored CRC it is 0. Takes
/// the fastest way that the processor has.
std::uint32_t crc_register(unsigned char const* data, std::size_t size);

/// The ways there are, from any start value of the register; every processor has the first.
namespace crc {

std::uint32_t by_slicing(std::uint32_t start, unsigned char const* data, std::size_t size);

/// Whether the processor multiplies without carries, and this build knows how to ask it to.
bool folding_works();
/// REQUIRES: `folding_works()`, and at least `folding_minimum` bytes.
std::uint32_t by_folding(std::uint32_t start, unsigned char const* data, std::size_t size);
inline constexpr std::size_t folding_minimum = 16;

}  // namespace crc

}  // namespace sivane
