// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace sivane::fuzzing {

/// Hands out the fuzzer's bytes in order; behind the last one all are 0.
class Input {
 public:
  Input(unsigned char const* data, std::size_t size) : data_(data), left_(size) {}

  bool empty() const { return left_ == 0; }
  unsigned char byte() {
    if (left_ == 0) return 0;
    --left_;
    return *data_++;
  }
  /// At most `count` bytes.
  std::vector<unsigned char> bytes(std::size_t count) {
    Input const taken = part(count);
    return {taken.data_, taken.data_ + taken.left_};
  }
  std::vector<unsigned char> rest() { return bytes(left_); }
  /// The next `count` bytes, to be handed out apart from the others.
  Input part(std::size_t count) {
    Input const result(data_, std::min(count, left_));
    data_ += result.left_;
    left_ -= result.left_;
    return result;
  }

 private:
  unsigned char const* data_;
  std::size_t left_;
};

/// Ends the program with a finding, in every build.
inline void check(bool holds, char const* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

}  // namespace sivane::fuzzing
