// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>

namespace inspect {

/// Tells of bytes that are no packets: the first places one by one, all of them in a sum.
class SkippedBytes {
 public:
  /// Waits for `tell`: what lies side by side is one place, and an input without a packet has no such places.
  void add(std::uint64_t offset, std::uint64_t size);
  void tell();
  /// After the last place.
  void tell_sum();

 private:
  std::uint64_t offset_ = 0, size_ = 0;  // of the place that is not told yet
  long long places_ = 0;
  std::uint64_t sum_ = 0;
};

}  // namespace inspect
