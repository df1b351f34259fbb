// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>
#include <string_view>

#include "section_builder.h"

namespace sivane::testing {

inline unsigned char low_byte(int value) { return static_cast<unsigned char>(value & 0xFF); }

inline Bytes characters(std::string_view text) { return {text.begin(), text.end()}; }

/// Bytes without a pattern, the same ones every time.
inline Bytes noise(std::size_t size) {
  Bytes bytes(size);
  std::uint32_t state = 1;
  for (unsigned char& byte : bytes) {
    state = state * 1664525 + 1013904223;
    byte = static_cast<unsigned char>(state >> 24);
  }
  return bytes;
}

}  // namespace sivane::testing
