// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/tables/crc.h>
#include <sivane/tables/crc_polynomial.h>

#include <array>

namespace sivane::crc {

namespace {

constexpr std::size_t stride = 16;

/// Row `zeros` holds what each byte value leaves in the register when `zeros` zero bytes follow it, so that
/// sixteen bytes cost sixteen look-ups that do not wait for each other.
using Tables = std::array<std::array<std::uint32_t, 256>, stride>;

constexpr Tables make_tables() {
  Tables tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte << 24;
    for (int bit = 0; bit < 8; ++bit) crc = times_x(crc);
    tables[0][byte] = crc;
  }
  for (std::size_t zeros = 1; zeros < stride; ++zeros) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      std::uint32_t const crc = tables[zeros - 1][byte];
      tables[zeros][byte] = tables[0][crc >> 24] ^ crc << 8;
    }
  }
  return tables;
}

constexpr Tables tables = make_tables();

std::uint32_t update_stride(std::uint32_t crc, unsigned char const* data) {
  std::uint32_t result = 0;
  for (std::size_t i = 0; i < stride; ++i) {
    std::uint32_t const held = i < 4 ? crc >> (24 - 8 * i) & 0xFF : 0;
    result ^= tables[stride - 1 - i][data[i] ^ held];
  }
  return result;
}

}  // namespace

std::uint32_t by_slicing(std::uint32_t start, unsigned char const* data, std::size_t size) {
  std::uint32_t crc = start;
  for (; size >= stride; size -= stride, data += stride) crc = update_stride(crc, data);
  for (; size > 0; --size, ++data) crc = tables[0][crc >> 24 ^ *data] ^ crc << 8;
  return crc;
}

}  // namespace sivane::crc
