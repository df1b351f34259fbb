// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/tables/crc.h>

namespace sivane {

std::uint32_t crc_register(unsigned char const* data, std::size_t size) {
  constexpr std::uint32_t preset = 0xFFFFFFFF;
  if (size >= crc::folding_minimum && crc::folding_works()) return crc::by_folding(preset, data, size);
  return crc::by_slicing(preset, data, size);
}

}  // namespace sivane
