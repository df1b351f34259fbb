// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <array>
#include <streambuf>
#include <string>

namespace inspect {

/// What is written cannot be taken: a full disk, say. Carries the reason.
struct OutputLost {
  std::string reason;
};

/// The buffer of an output stream on a file descriptor. A small one, so that a disk that is full ends the run
/// at the next section; throws `OutputLost`.
class OutputBuffer final : public std::streambuf {
 public:
  explicit OutputBuffer(int descriptor) : descriptor_(descriptor) { empty(); }
  /// Whether a person may be looking.
  bool is_terminal() const;

 private:
  int_type overflow(int_type c) override;
  int sync() override;
  void empty() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }

  int descriptor_;
  std::array<char, 8192> bytes_;
};

}  // namespace inspect
