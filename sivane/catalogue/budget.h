// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: how much memory there is, and how much is used.
#pragma once

#include <cstddef>

namespace sivane::catalogue {

class Budget {
 public:
  explicit Budget(std::size_t limit) : limit_(limit) {}

  /// Whether `size` bytes may take the place of `freed` ones; what may not is counted.
  bool exchange(std::size_t freed, std::size_t size) {
    bool const fits = size <= freed || used_ - freed + size <= limit_;
    if (fits) {
      used_ = used_ - freed + size;
    } else {
      ++left_out_;
    }
    return fits;
  }
  void free(std::size_t size) { used_ -= size; }
  /// Bookkeeping that has to be, whether it fits or not.
  void charge(std::size_t freed, std::size_t size) { used_ = used_ - freed + size; }

  std::size_t used() const { return used_; }
  std::size_t left_out() const { return left_out_; }

 private:
  std::size_t limit_;
  std::size_t used_ = 0;
  std::size_t left_out_ = 0;
};

}  // namespace sivane::catalogue
