// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <algorithm>
#include <memory>

#include "section_builder.h"

namespace sivane::testing {

/// Bytes in a heap block of exactly their size, so that the address sanitizer sees a read behind them. (A
/// vector may hold more memory than bytes.)
class HeapBlock {
 public:
  explicit HeapBlock(Bytes const& bytes)
      : size_(bytes.size()), bytes_(std::make_unique<unsigned char[]>(bytes.size())) {
    std::copy(bytes.begin(), bytes.end(), bytes_.get());
  }

  unsigned char* data() const { return bytes_.get(); }
  int size() const { return static_cast<int>(size_); }

 private:
  std::size_t size_;
  std::unique_ptr<unsigned char[]> bytes_;
};

}  // namespace sivane::testing
