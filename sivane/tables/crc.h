// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the checksum of long-form sections.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sivane {

/// The CRC_32 register after `size` bytes (ISO/IEC 13818-1, Annex A): polynomial 0x04C11DB7, most significant
/// bit first, preset to all ones, no final inversion. Over a whole section with its stored CRC it is 0.
std::uint32_t crc_register(unsigned char const* data, std::size_t size);

}  // namespace sivane
